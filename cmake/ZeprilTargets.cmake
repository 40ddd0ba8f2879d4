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

# zepril_room(<folder under src> [DEPENDS rooms...]): the library zepril_<folder> of all its sources.
function(zepril_room room)
  cmake_parse_arguments(arg "" "" "DEPENDS" ${ARGN})
  string(REPLACE "/" "_" name "${room}")
  file(GLOB sources CONFIGURE_DEPENDS "${CMAKE_SOURCE_DIR}/src/${room}/*.cpp"
       "${CMAKE_SOURCE_DIR}/src/${room}/*.h")
  file(GLOB units CONFIGURE_DEPENDS "${CMAKE_SOURCE_DIR}/src/${room}/*.cpp")
  list(FILTER sources EXCLUDE REGEX "/main\\.cpp$")
  list(FILTER units EXCLUDE REGEX "/main\\.cpp$")
  set(links "")
  foreach(dep IN LISTS arg_DEPENDS)
    string(REPLACE "/" "_" dep_name "${dep}")
    list(APPEND links zepril_${dep_name})
  endforeach()
  if(units)
    add_library(zepril_${name} STATIC ${sources})
    target_include_directories(zepril_${name} PUBLIC "${CMAKE_SOURCE_DIR}/src")
    target_link_libraries(zepril_${name} PUBLIC zepril_flags ${links})
  else()
    add_library(zepril_${name} INTERFACE)
    target_include_directories(zepril_${name} INTERFACE "${CMAKE_SOURCE_DIR}/src")
    target_link_libraries(zepril_${name} INTERFACE zepril_flags ${links})
  endif()
endfunction()
