# Sets SOURCE, a page in Markdown, into FRAME and writes TARGET. Links to other pages come to lead to their HTML, and
# headings get the names that links lead to.

execute_process(COMMAND ${CMARK} --extension table --to html ${SOURCE} OUTPUT_VARIABLE content COMMAND_ERROR_IS_FATAL ANY)
string(REGEX REPLACE "href=\"(\\.\\./)?(guide/)?([a-z-]+)\\.md" "href=\"\\3.html" content "${content}")
string(REPLACE "src=\"../images/" "src=\"images/" content "${content}")

string(REGEX MATCHALL "<h[23]>[^<]*</h[23]>" headings "${content}")
foreach(heading ${headings})
  string(REGEX REPLACE "<h([23])>(.*)</h[23]>" "\\2" text "${heading}")
  string(TOLOWER "${text}" name)
  string(REPLACE " " "-" name "${name}")
  string(REGEX REPLACE "[^a-z0-9-]" "" name "${name}")
  string(REGEX REPLACE "<h([23])>" "<h\\1 id=\"${name}\">" named "${heading}")
  string(REPLACE "${heading}" "${named}" content "${content}")
endforeach()

string(REGEX MATCH "<h1>([^<]*)</h1>" heading "${content}")
set(title "${CMAKE_MATCH_1}")
file(READ ${FRAME} page)
string(REPLACE "{{title}}" "${title}" page "${page}")
string(REPLACE "{{content}}" "${content}" page "${page}")
file(WRITE ${TARGET} "${page}")
