# Makes HTML pages of the manual's Markdown, with the pictures beside them.
#   cmake -DCMARK=… -DFROM=docs/manual -DTO=build/manual -P manual.cmake
file(REMOVE_RECURSE ${TO})
file(COPY ${FROM}/pictures DESTINATION ${TO})
file(GLOB pages ${FROM}/*.md)
set(style "body{font-family:Verdana,'DejaVu Sans',sans-serif;max-width:52em;margin:2em auto;padding:0 1em;line-height:1.5}
img{max-width:100%;border:1px solid #bbb}table{border-collapse:collapse}td,th{border:1px solid #bbb;padding:.2em .6em;text-align:left}
h1,h2{color:#1f4e79}")
foreach(page IN LISTS pages)
  execute_process(COMMAND ${CMARK} -e table ${page} OUTPUT_VARIABLE body COMMAND_ERROR_IS_FATAL ANY)
  string(REPLACE ".md\"" ".html\"" body "${body}")
  file(STRINGS ${page} title LIMIT_COUNT 1)
  string(REGEX REPLACE "^# *" "" title "${title}")
  get_filename_component(name ${page} NAME_WE)
  file(WRITE ${TO}/${name}.html "<!DOCTYPE html>
<html lang=\"pt-BR\">
<head><meta charset=\"utf-8\"><title>${title} - Zarim 1.2</title><style>${style}</style></head>
<body>
<p><a href=\"index.html\">Manual</a></p>
${body}</body>
</html>
")
endforeach()
