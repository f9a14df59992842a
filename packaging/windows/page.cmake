# Makes a page for a browser of the Markdown in FROM, with links to the other pages made so.
execute_process(COMMAND ${CMARK} --unsafe -e table ${FROM} OUTPUT_VARIABLE text COMMAND_ERROR_IS_FATAL ANY)
string(REPLACE ".md" ".html" text "${text}")
# The names that links to a section go by.
string(REGEX MATCHALL "<h2>[^<;]*</h2>" headings "${text}")
foreach(heading ${headings})
  string(REGEX REPLACE "<.?h2>" "" name "${heading}")
  string(TOLOWER "${name}" name)
  string(REGEX REPLACE "[^a-z0-9 -]" "" name "${name}")
  string(REPLACE " " "-" name "${name}")
  string(REPLACE "<h2>" "<h2 id=\"${name}\">" anchored "${heading}")
  string(REPLACE "${heading}" "${anchored}" text "${text}")
endforeach()
file(WRITE ${INTO} "<!DOCTYPE html>
<html lang=\"en\">
<meta charset=\"utf-8\">
<title>Korvel</title>
<style>
body { max-width: 52em; margin: 2em auto; padding: 0 1em; font: 16px/1.5 sans-serif; }
table { border-collapse: collapse; }
td, th { border: 1px solid #bbb; padding: .3em .6em; text-align: left; vertical-align: top; }
img { max-width: 100%; }
</style>
${text}</html>
")
