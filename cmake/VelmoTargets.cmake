# How every target of the project is compiled.

# Compile and link flags of the sanitizers, for our targets and for the programs
# that the install tests build.
set(VELMO_SANITIZE_LINK_FLAGS "")
if(VELMO_SANITIZE)
  set(VELMO_SANITIZE_LINK_FLAGS -fsanitize=${VELMO_SANITIZE})
  # C programs load our library too. They need the C++ half of Clang's runtime,
  # which only the shared one brings. Fuzzers bring a runtime of their own.
  if(CMAKE_CXX_COMPILER_ID MATCHES "Clang" AND NOT VELMO_BUILD_FUZZERS)
    execute_process(
      COMMAND "${CMAKE_CXX_COMPILER}"
        -print-file-name=libclang_rt.asan-${CMAKE_SYSTEM_PROCESSOR}.so
      OUTPUT_VARIABLE VELMO_SANITIZE_RUNTIME OUTPUT_STRIP_TRAILING_WHITESPACE)
    cmake_path(GET VELMO_SANITIZE_RUNTIME PARENT_PATH velmo_runtime_dir)
    list(APPEND VELMO_SANITIZE_LINK_FLAGS
      -shared-libasan "-Wl,-rpath,${velmo_runtime_dir}")
  elseif(VELMO_SANITIZE MATCHES "address")
    execute_process(
      COMMAND "${CMAKE_CXX_COMPILER}" -print-file-name=libasan.so
      OUTPUT_VARIABLE VELMO_SANITIZE_RUNTIME OUTPUT_STRIP_TRAILING_WHITESPACE)
  endif()
endif()

function(velmo_configure target)
  set_target_properties(${target} PROPERTIES
    CXX_STANDARD 20 CXX_STANDARD_REQUIRED ON CXX_EXTENSIONS OFF
    C_STANDARD 11 C_STANDARD_REQUIRED ON C_EXTENSIONS OFF
    CXX_VISIBILITY_PRESET hidden C_VISIBILITY_PRESET hidden
    VISIBILITY_INLINES_HIDDEN ON POSITION_INDEPENDENT_CODE ON)
  target_compile_options(${target} PRIVATE
    -Wall -Wextra -Wpedantic -Wconversion -Wshadow
    $<$<OR:$<C_COMPILER_ID:Clang>,$<CXX_COMPILER_ID:Clang>>:-Wreserved-identifier>
    $<$<BOOL:${VELMO_WARNINGS_AS_ERRORS}>:-Werror>)
  if(VELMO_BUILD_FUZZERS)
    target_compile_options(${target} PRIVATE -fsanitize=fuzzer-no-link)
  endif()
  if(VELMO_SANITIZE)
    target_compile_options(${target} PRIVATE
      -fsanitize=${VELMO_SANITIZE} -fno-sanitize-recover=all
      -fno-omit-frame-pointer)
    target_link_options(${target} PRIVATE ${VELMO_SANITIZE_LINK_FLAGS})
  endif()
endfunction()

# For what is shipped: the library and its helper programs, which run in other
# people's processes or read what strangers send.
function(velmo_harden target)
  set(optimised "$<NOT:$<CONFIG:Debug>>")
  if(NOT VELMO_SANITIZE)
    target_compile_options(${target} PRIVATE
      -fstack-clash-protection -fstack-protector-strong
      # Some distributions' compilers define it already.
      "$<${optimised}:-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=2>")
  endif()
  get_target_property(type ${target} TYPE)
  if(NOT type STREQUAL "OBJECT_LIBRARY")
    target_link_options(${target} PRIVATE "LINKER:-z,relro,-z,now")
  endif()
endfunction()

# For code that runs on a host's stack, which may have 16 KiB: a large frame
# steps over the guard page and writes into the host's memory. Neither an
# unoptimised nor a sanitized build says how large frames are when shipped.
function(velmo_limit_frames target)
  if(NOT VELMO_SANITIZE)
    target_compile_options(${target} PRIVATE
      "$<$<NOT:$<CONFIG:Debug>>:-Wframe-larger-than=4096>")
  endif()
endfunction()
