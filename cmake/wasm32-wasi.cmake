# WebAssembly by clang 19 and wasi-libc, all from Debian. The program brings its own entry and asks the system for nothing:
# what it needs of the world the page gives it.
set(CMAKE_SYSTEM_NAME Generic)
set(CMAKE_SYSTEM_PROCESSOR wasm32)
set(CMAKE_CXX_COMPILER clang++-19)
set(CMAKE_CXX_COMPILER_TARGET wasm32-wasi)
set(CMAKE_AR llvm-ar-19)
set(CMAKE_RANLIB llvm-ranlib-19)
set(CMAKE_TRY_COMPILE_TARGET_TYPE STATIC_LIBRARY)
set(CMAKE_EXECUTABLE_SUFFIX .wasm)
set(CMAKE_CXX_FLAGS_INIT "-stdlib=libc++ -fno-exceptions -fno-rtti -ffunction-sections -fdata-sections -flto")
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE NEVER)
set(ZARPI_WEB ON)
