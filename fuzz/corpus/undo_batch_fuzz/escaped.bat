@echo off
rem tarnwick-escaped move "%2Ff%2Fa%0Ab" "%2Ff%2Fc"
