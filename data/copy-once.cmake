# Copies FROM, a file or a folder, into the folder INTO unless something of its name is there already.
get_filename_component(name ${FROM} NAME)
if(NOT EXISTS ${INTO}/${name})
  file(COPY ${FROM} DESTINATION ${INTO})
endif()
