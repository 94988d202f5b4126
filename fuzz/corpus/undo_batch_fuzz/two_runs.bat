 
@echo off
echo Undo
pause
move "/f/new name.txt" "/f/old.txt"
del "/f/copy.txt"
rem "/f/t2" "/f/t"
 
@echo off
move "/f/b" "/f/a"
