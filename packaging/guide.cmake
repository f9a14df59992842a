# The guide as people read it without a checkout: every page of docs, for a browser where there is cmark-gfm to make that
# and else as it is, and the pictures that the pages show. The target korvel_guide makes the pages.

set(docs ${PROJECT_SOURCE_DIR}/docs)
find_program(CMARK cmark-gfm)
if(KORVEL_PACKAGING AND NOT CMARK)
  message(FATAL_ERROR "The guide needs cmark-gfm (Debian: cmark-gfm)")
endif()
file(GLOB sources CONFIGURE_DEPENDS ${docs}/*.md)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${sources}) # which say which pictures are shown
set(texts "")
set(pages "")
foreach(source ${sources})
  file(READ ${source} text)
  string(APPEND texts "${text}")
  if(CMARK)
    get_filename_component(name ${source} NAME_WE)
    set(page ${CMAKE_CURRENT_BINARY_DIR}/docs/${name}.html)
    add_custom_command(
      OUTPUT ${page}
      COMMAND ${CMAKE_COMMAND} -D CMARK=${CMARK} -D FROM=${source} -D INTO=${page} -P ${CMAKE_CURRENT_LIST_DIR}/page.cmake
      DEPENDS ${source} ${CMAKE_CURRENT_LIST_DIR}/page.cmake VERBATIM)
    list(APPEND pages ${page})
  else()
    list(APPEND pages ${source})
  endif()
endforeach()
add_custom_target(korvel_guide ALL DEPENDS ${pages})
file(GLOB files CONFIGURE_DEPENDS ${docs}/*.png ${docs}/*.svg)
set(pictures "")
foreach(file ${files})
  get_filename_component(name ${file} NAME)
  if(texts MATCHES "[(\"]${name}[)\" ]")
    list(APPEND pictures ${file})
  endif()
endforeach()

# Further arguments are those of install(FILES).
function(install_guide destination)
  install(FILES ${pages} ${pictures} DESTINATION ${destination} ${ARGN})
endfunction()
