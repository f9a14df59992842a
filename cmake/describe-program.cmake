# describe_program(target description): gives a program what Windows shows of its file (icon, version, description) and
# the manifest by which names of files are UTF-8 and as long as they are. Nothing elsewhere.
function(describe_program target description)
  if(WIN32)
    enable_language(RC)
    set(resources ${CMAKE_CURRENT_BINARY_DIR}/${target}.rc)
    configure_file(${PROJECT_SOURCE_DIR}/resources/windows/program.rc.in ${resources} @ONLY)
    target_sources(${target} PRIVATE ${resources})
  endif()
endfunction()
