# Language level, warnings, sanitizers, hardening and the compiler cache, the same for every target.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_CXX_FLAGS_RELEASE "-O2 -DNDEBUG")
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)

include(CheckPIESupported)
check_pie_supported()

find_program(CCACHE ccache)
if(CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_C_COMPILER_LAUNCHER ${CCACHE})
  # Precompiled headers carry time stamps that the cache has to look past.
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env
      CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime ${CCACHE})
endif()

find_package(PkgConfig REQUIRED)
find_package(Threads REQUIRED)

add_library(orken_flags INTERFACE)
target_compile_options(orken_flags INTERFACE
  -Wall -Wextra -Wpedantic -Werror -Wshadow -Wconversion -Wsign-conversion -Wnon-virtual-dtor -Woverloaded-virtual
  # Designated initialisers name what differs from the defaults.
  -Wno-missing-field-initializers)
if(ORKEN_SANITIZE)
  target_compile_options(orken_flags INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  target_link_options(orken_flags INTERFACE -fsanitize=address,undefined)
endif()
if(ORKEN_SANITIZE_THREADS)
  target_compile_options(orken_flags INTERFACE -fsanitize=thread)
  target_link_options(orken_flags INTERFACE -fsanitize=thread)
endif()
if(ORKEN_COVERAGE)
  target_compile_options(orken_flags INTERFACE --coverage -fprofile-update=atomic)
  target_link_options(orken_flags INTERFACE --coverage)
endif()
if(ORKEN_FUZZ)
  target_compile_options(orken_flags INTERFACE -fsanitize=fuzzer-no-link)
endif()
if(ORKEN_HARDEN)
  target_compile_options(orken_flags INTERFACE
    -fstack-protector-strong -fstack-clash-protection -fcf-protection=full -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=3)
  target_link_options(orken_flags INTERFACE -Wl,-z,relro,-z,now,-z,noexecstack)
endif()
