# Builds for 64-bit Windows with Debian's MinGW-w64. Libraries are looked for under ZARPI_WINDOWS_ROOT (packaging/windows/toolchain fills
# it) and in MinGW's own folder, programs on the host alone.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(target x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${target}-gcc-posix)
set(CMAKE_CXX_COMPILER ${target}-g++-posix)
set(CMAKE_RC_COMPILER ${target}-windres)

list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES ZARPI_WINDOWS_ROOT)
if(NOT ZARPI_WINDOWS_ROOT)
    set(ZARPI_WINDOWS_ROOT $ENV{ZARPI_WINDOWS_ROOT})
endif()
set(CMAKE_FIND_ROOT_PATH ${ZARPI_WINDOWS_ROOT} /usr/${target})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# Programs that are built run where there is a Wine.
find_program(WINE wine)
if(WINE)
    set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/wine)
endif()
