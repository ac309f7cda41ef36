# Windows, 64 bits, by Debian's compiler; what is built needs nothing but Windows.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static")

# With the Qt that is built beside this file, where it is there.
execute_process(COMMAND bash -c ". '${CMAKE_CURRENT_LIST_DIR}/luogo.sh' && [ -e \"$qt_windows/completa\" ] && printf %s \"$qt_windows\""
  OUTPUT_VARIABLE qt_windows ERROR_QUIET)
set(QT_HOST_PATH /usr)
set(QT_HOST_PATH_CMAKE_DIR /usr/lib/x86_64-linux-gnu/cmake)

set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32 ${qt_windows})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/wine)
