# Makes of CHANGELOG.md (FROM) what packages want it as: METAINFO from the template TEMPLATE, with PARTS as the number of
# microcontrollers, and, where DEBIAN names a file, Debian's changelog. Fails when the first entry is not VERSION's.

file(READ ${FROM} text)
string(REGEX MATCHALL "\n## [^\n]*" headings "${text}")
list(GET headings 0 newest)
string(FIND "${newest}" "\n## ${VERSION} (" at)
if(NOT at EQUAL 0)
  message(FATAL_ERROR "The first entry of CHANGELOG.md has to be that of ${VERSION}, the project's version.")
endif()

set(releases "")
set(entries "")
foreach(heading ${headings})
  if(NOT heading MATCHES "^\n## ([0-9.]+) \\(([0-9-]+)\\)$")
    message(FATAL_ERROR "CHANGELOG.md: this should be ## VERSION (YEAR-MONTH-DAY):${heading}")
  endif()
  set(version ${CMAKE_MATCH_1})
  set(date ${CMAKE_MATCH_2})
  string(FIND "${text}" "${heading}\n" at)
  string(LENGTH "${heading}" length)
  math(EXPR at "${at} + ${length}")
  string(SUBSTRING "${text}" ${at} -1 items)
  string(REGEX REPLACE "\n## .*" "" items "${items}")
  string(STRIP "${items}" items)

  set(list "${items}\n")
  string(REPLACE "\n  " " " list "${list}")
  string(REPLACE "&" "&amp;" list "${list}")
  string(REPLACE "<" "&lt;" list "${list}")
  string(REGEX REPLACE "- ([^\n]*)\n" "          <li>\\1</li>\n" list "${list}")
  string(APPEND releases "    <release version=\"${version}\" date=\"${date}\">\n"
                         "      <description>\n        <ul>\n${list}        </ul>\n"
                         "      </description>\n    </release>\n")

  if(DEBIAN)
    string(REPLACE "\n" "\n  " list "${items}")
    string(REPLACE "  - " "  * " list "  ${list}")
    execute_process(COMMAND date -uR -d "${date} 12:00" OUTPUT_VARIABLE time OUTPUT_STRIP_TRAILING_WHITESPACE
                    COMMAND_ERROR_IS_FATAL ANY)
    string(APPEND entries "korvel (${version}) stable; urgency=medium\n\n${list}\n\n -- ${MAINTAINER}  ${time}\n\n")
  endif()
endforeach()

string(STRIP "${releases}" RELEASES)
configure_file(${TEMPLATE} ${METAINFO} @ONLY)
if(DEBIAN)
  string(STRIP "${entries}" entries)
  file(WRITE ${DEBIAN} "${entries}\n")
endif()
