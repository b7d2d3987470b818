# Sources that are generated, which what reads ours needs.
add_custom_target(tromelo_generated)

# tromelo_client_protocols(<name> <xml>...): the library tromelo_<name> with the client's side of
# Wayland protocols, made from their descriptions; C, so apart from our own C++.
function(tromelo_client_protocols name)
  set(folder ${CMAKE_CURRENT_BINARY_DIR}/protocol)
  file(MAKE_DIRECTORY ${folder})
  foreach(description ${ARGN})
    set(xml ${WAYLAND_PROTOCOLS_DIR}/${description}.xml)
    get_filename_component(protocol ${description} NAME)
    set(header ${folder}/${protocol}-client-protocol.h)
    set(code ${folder}/${protocol}-protocol.c)
    add_custom_command(OUTPUT ${header} ${code}
      COMMAND ${WAYLAND_SCANNER} client-header ${xml} ${header}
      COMMAND ${WAYLAND_SCANNER} private-code ${xml} ${code}
      DEPENDS ${xml})
    list(APPEND sources ${header} ${code})
  endforeach()
  add_library(tromelo_${name} STATIC ${sources})
  set_target_properties(tromelo_${name} PROPERTIES AUTOGEN OFF AUTOMOC OFF AUTOUIC OFF AUTORCC OFF)
  add_dependencies(tromelo_generated tromelo_${name})
  target_include_directories(tromelo_${name} SYSTEM INTERFACE ${folder})
  target_link_libraries(tromelo_${name} PUBLIC PkgConfig::WAYLAND_CLIENT)
endfunction()
