# Makes a page for a browser, INTO, of the Markdown in FROM: links to other pages lead to those made so, and headings
# have the names that links to a section go by.
execute_process(COMMAND ${CMARK} --unsafe -e table ${FROM} OUTPUT_VARIABLE rest COMMAND_ERROR_IS_FATAL ANY)
string(REGEX REPLACE "href=\"([^\":]+)\\.md([\"#])" "href=\"\\1.html\\2" rest "${rest}")
set(text "")
set(title "")
while(rest MATCHES "(<h([1-6])>)([^\n]*)</h")
  set(tag "${CMAKE_MATCH_1}")
  set(level ${CMAKE_MATCH_2})
  set(heading "${CMAKE_MATCH_3}")
  string(REGEX REPLACE "</?[^>]*>" "" name "${heading}")
  if(NOT title)
    set(title "${name}")
  endif()
  string(REGEX REPLACE "&[a-z]+;" "" name "${name}")
  string(TOLOWER "${name}" name)
  string(REGEX REPLACE "[][!\"#$%&'()*+,./:;<=>?@\\^`{|}~]" "" name "${name}")
  string(REPLACE " " "-" name "${name}")
  string(FIND "${rest}" "${tag}${heading}</h" at)
  string(SUBSTRING "${rest}" 0 ${at} before)
  string(LENGTH "${tag}" length)
  math(EXPR at "${at} + ${length}")
  string(SUBSTRING "${rest}" ${at} -1 rest)
  string(APPEND text "${before}<h${level} id=\"${name}\">")
endwhile()
file(WRITE ${INTO} "<!DOCTYPE html>
<html lang=\"en\">
<meta charset=\"utf-8\">
<title>${title}</title>
<style>
body { max-width: 52em; margin: 2em auto; padding: 0 1em; font: 16px/1.5 sans-serif; }
table { border-collapse: collapse; }
td, th { border: 1px solid #bbb; padding: .3em .6em; text-align: left; vertical-align: top; }
img { max-width: 100%; }
</style>
${text}${rest}</html>
")
