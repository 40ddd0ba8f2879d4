# The rooms of the house: one small static library a folder, all with the same flags.

include(ZeprilHardening)

add_library(zepril_flags INTERFACE)
target_compile_options(zepril_flags INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion
                                              -Wno-sign-conversion -Wnon-virtual-dtor)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  # This compiler warns wrongly at text + std::string when it optimises.
  target_compile_options(zepril_flags INTERFACE -Wno-restrict)
endif()
if(NOT ZEPRIL_SANITIZE AND NOT ZEPRIL_FUZZ)
  target_link_libraries(zepril_flags INTERFACE zepril_hardening)
endif()
if(ZEPRIL_WERROR)
  target_compile_options(zepril_flags INTERFACE -Werror)
endif()
if(ZEPRIL_SANITIZE)
  target_compile_options(zepril_flags INTERFACE -fsanitize=address,undefined -fno-omit-frame-pointer
                                                -fno-sanitize-recover=undefined)
  target_link_options(zepril_flags INTERFACE -fsanitize=address,undefined)
endif()
if(ZEPRIL_FUZZ)
  target_compile_options(zepril_flags INTERFACE -fsanitize=fuzzer-no-link,address,undefined
                                                -fno-sanitize-recover=undefined)
  target_link_options(zepril_flags INTERFACE -fsanitize=address,undefined)
endif()

# The rooms of cmake/floors.txt as ZEPRIL_ROOMS, those that each includes as ZEPRIL_ARROWS_<room>.
set_property(DIRECTORY "${CMAKE_SOURCE_DIR}" APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS
                                                             "${CMAKE_SOURCE_DIR}/cmake/floors.txt")
file(STRINGS "${CMAKE_SOURCE_DIR}/cmake/floors.txt" floor_lines REGEX "^[a-z_/]+:")
set(ZEPRIL_ROOMS "")
foreach(line IN LISTS floor_lines)
  string(REGEX MATCH "^([a-z_/]+):(.*)$" line "${line}")
  list(APPEND ZEPRIL_ROOMS "${CMAKE_MATCH_1}")
  separate_arguments("ZEPRIL_ARROWS_${CMAKE_MATCH_1}" UNIX_COMMAND "${CMAKE_MATCH_2}")
endforeach()

# zepril_precompile(<target> headers...): the libraries' headers whose reading takes most of the time
# of the tests' and the windows' sources. zepril_precompiled(<target> <from>) reads those of another
# target, which has the same flags.
function(zepril_precompiled target from)
  if(ZEPRIL_PCH)
    target_precompile_headers(${target} REUSE_FROM ${from})
  endif()
endfunction()

function(zepril_precompile target)
  if(ZEPRIL_PCH)
    target_precompile_headers(${target} PRIVATE ${ARGN})
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
      # This compiler warns wrongly at text = "..." in the library's headers when they are precompiled.
      target_compile_options(${target} PRIVATE -Wno-array-bounds -Wno-stringop-overflow)
    endif()
  endif()
endfunction()

# zepril_room(<folder under src> [EXCEPT sources...]): the library zepril_<folder> of all its sources
# but main.cpp. It links the rooms to which its arrows lead, the toolkit's only where that is built.
function(zepril_room room)
  cmake_parse_arguments(arg "" "" "EXCEPT" ${ARGN})
  string(REPLACE "/" "_" name "${room}")
  file(GLOB sources CONFIGURE_DEPENDS "${CMAKE_SOURCE_DIR}/src/${room}/*.cpp"
       "${CMAKE_SOURCE_DIR}/src/${room}/*.h")
  foreach(source IN ITEMS main.cpp ${arg_EXCEPT})
    list(REMOVE_ITEM sources "${CMAKE_SOURCE_DIR}/src/${room}/${source}")
  endforeach()
  add_library(zepril_${name} STATIC ${sources})
  target_include_directories(zepril_${name} PUBLIC "${CMAKE_SOURCE_DIR}/src")
  target_link_libraries(zepril_${name} PUBLIC zepril_flags)
  foreach(lower IN LISTS ZEPRIL_ARROWS_${room})
    if(ZEPRIL_QT OR NOT lower STREQUAL "platform/qt")
      string(REPLACE "/" "_" lower_name "${lower}")
      target_link_libraries(zepril_${name} PUBLIC zepril_${lower_name})
    endif()
  endforeach()
endfunction()
