# Third-party libraries, all from Debian packages (scripts/install-deps.sh).
find_package(PkgConfig REQUIRED)
find_package(Threads REQUIRED)
find_package(ICU REQUIRED COMPONENTS uc i18n data)
find_package(OpenSSL REQUIRED COMPONENTS Crypto)
find_package(pugixml REQUIRED)
find_package(JPEG REQUIRED)
find_package(PNG REQUIRED)
find_package(GIF REQUIRED)
find_package(TIFF REQUIRED)
pkg_check_modules(PCRE2 REQUIRED IMPORTED_TARGET libpcre2-8)
pkg_check_modules(UUID REQUIRED IMPORTED_TARGET uuid)
find_package(GTest)
find_package(benchmark QUIET)
# The desktop application and its tests.
# Multimedia plays the finish sound of a run.
find_package(Qt6 REQUIRED COMPONENTS Widgets Multimedia PrintSupport Test)
