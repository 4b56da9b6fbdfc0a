# The house flags. `vokm_flags` is what library code is compiled with, `vokm_warnings` goes to tests, examples and
# benchmarks too. Bits are a promise, so nothing here lets the compiler reorder, fuse or assume away: -fno-math-errno
# only makes a root one instruction.
if(PROJECT_IS_TOP_LEVEL AND NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
    set(CMAKE_BUILD_TYPE Release CACHE STRING "Debug, Release, RelWithDebInfo or MinSizeRel" FORCE)
endif()
set(CMAKE_C_STANDARD 99)
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS ON)    # vector types are a compiler extension
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

add_library(vokm_warnings INTERFACE)
target_compile_options(vokm_warnings INTERFACE -Wall -Wextra -Wshadow
    $<$<COMPILE_LANG_AND_ID:CXX,GNU>:-Wno-restrict -Wno-maybe-uninitialized -Wno-psabi>    # g++ 12 cries wolf over std::string
    # clang++ names functions of wide vectors, also those that are always inlined where the registers are wide, and loops of
    # inlined templates that it has not unrolled as asked.
    $<$<COMPILE_LANG_AND_ID:CXX,Clang>:-Wno-psabi -Wno-pass-failed>
    $<$<BOOL:${VOKM_WERROR}>:-Werror>)

add_library(vokm_flags INTERFACE)
target_link_libraries(vokm_flags INTERFACE vokm_warnings)
target_compile_options(vokm_flags INTERFACE
    -msse3 -mfpmath=sse -ffp-contract=off -fno-math-errno -falign-loops=64
    -fvisibility=hidden $<$<COMPILE_LANGUAGE:CXX>:-fvisibility-inlines-hidden>)

set(VOKM_SANITIZE "" CACHE STRING "Sanitizers for everything that is built, e.g. address,undefined")
if(VOKM_SANITIZE)
    # Operands may start at any address, between two elements' own too. The address sanitizer sees what becomes of a null pointer
    # or of one beyond its object, and the compiler takes a quarter of the time without the tests for either.
    add_compile_options(-fsanitize=${VOKM_SANITIZE} -fno-sanitize=alignment,null,object-size,pointer-overflow
        -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${VOKM_SANITIZE})
endif()
if(VOKM_SANITIZE OR VOKM_BUILD_FUZZER)
    # clang++ gives the runtimes of sanitizers and fuzzer to programs only. A shared library has to be linked without them, and
    # this stands at the end of the line, behind the library's own wish for no undefined symbols.
    string(APPEND CMAKE_CXX_STANDARD_LIBRARIES " -Wl,-z,undefs")
endif()
