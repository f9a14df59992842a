# Copies those files of the folder FROM that the folder TO does not have.
file(MAKE_DIRECTORY ${TO})
file(GLOB files RELATIVE ${FROM} ${FROM}/*)
foreach(file ${files})
  if(NOT EXISTS ${TO}/${file})
    file(COPY ${FROM}/${file} DESTINATION ${TO})
  endif()
endforeach()
