# Flags that every target of the house shares, and the helpers by which a floor becomes a library.

add_library(herbergo_flags INTERFACE)
target_compile_options(
  herbergo_flags
  INTERFACE -Wall
            -Wextra
            -Wpedantic
            -Werror
            -Wshadow
            -Wconversion
            -Wsign-conversion
            -Wold-style-cast
            -Wnon-virtual-dtor
            -Woverloaded-virtual
            # Names carry umlauts; two spellings of one letter would be two names.
            $<$<CXX_COMPILER_ID:GNU>:-Werror=normalized=nfc>)
if(HERBERGO_SANITIZE)
  target_compile_options(herbergo_flags INTERFACE -fsanitize=address,undefined
                                                  -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(herbergo_flags INTERFACE -fsanitize=address,undefined)
endif()
if(HERBERGO_FUZZ)
  target_compile_options(herbergo_flags INTERFACE -fsanitize=fuzzer-no-link)
  target_link_options(herbergo_flags INTERFACE -fsanitize=fuzzer-no-link)
endif()

# herbergo_library(name folder libraries...): all sources of one folder (not of those below it).
function(herbergo_library name folder)
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${folder}/*.cpp)
  if(NOT sources)
    add_library(${name} INTERFACE)
    target_include_directories(${name} INTERFACE ${PROJECT_SOURCE_DIR}/src)
    target_link_libraries(${name} INTERFACE ${ARGN})
    return()
  endif()
  add_library(${name} STATIC ${sources})
  target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  target_link_libraries(${name} PUBLIC ${ARGN} PRIVATE herbergo_flags)
endfunction()

# All programs of the house, without tests and benchmarks.
add_custom_target(herbergo-programs)

# herbergo_program(name main.cpp libraries...)
function(herbergo_program name main)
  add_executable(${name} ${main})
  add_dependencies(herbergo-programs ${name})
  target_link_libraries(${name} PRIVATE ${ARGN} herbergo_flags)
endfunction()
