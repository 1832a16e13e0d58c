# Per-target defaults: warnings, and the sanitizer or fuzzer instrumentation of the build.

if(SKYLATHE_FUZZ AND NOT CMAKE_CXX_COMPILER_ID MATCHES "Clang")
    message(FATAL_ERROR "SKYLATHE_FUZZ needs clang (libFuzzer): configure with -DCMAKE_CXX_COMPILER=clang++")
endif()

function(skylathe_target_defaults target)
    target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic)
    if(SKYLATHE_FUZZ)
        target_compile_options(${target} PRIVATE -fsanitize=fuzzer-no-link,address,undefined
                                                 -fno-omit-frame-pointer -fno-sanitize-recover=undefined)
        target_link_options(${target} PRIVATE -fsanitize=address,undefined)
    elseif(SKYLATHE_SANITIZE)
        target_compile_options(${target} PRIVATE -fsanitize=address,undefined
                                                 -fno-omit-frame-pointer -fno-sanitize-recover=undefined)
        target_link_options(${target} PRIVATE -fsanitize=address,undefined)
    endif()
endfunction()

# A GoogleTest program registered with CTest as one test.
function(skylathe_gtest name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LIBS" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    skylathe_target_defaults(${name})
    target_link_libraries(${name} PRIVATE ${ARG_LIBS} GTest::gtest GTest::gtest_main)
    add_test(NAME ${name} COMMAND ${name})
endfunction()

# A libFuzzer target; scripts/fuzz.sh runs each for a given time on seeds the seed maker writes.
function(skylathe_fuzz_target name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LIBS" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    skylathe_target_defaults(${name})
    target_link_options(${name} PRIVATE -fsanitize=fuzzer)
    target_link_libraries(${name} PRIVATE ${ARG_LIBS})
    set_property(GLOBAL APPEND PROPERTY SKYLATHE_FUZZ_TARGETS ${name})
endfunction()
