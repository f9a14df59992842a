# Copies the folder FROM to TO unless that is there already.
if(NOT EXISTS ${TO})
  file(COPY ${FROM}/ DESTINATION ${TO})
endif()
