# Makes all pages anew: cmake -DCMARK=cmark-gfm -DFONTI=docs/manuale -DMANUALE=FOLDER -P PagineManuale.cmake
# A link to a page of the sources becomes one to its HTML; the page's title is its heading.
file(REMOVE_RECURSE ${MANUALE})
file(GLOB_RECURSE pagine RELATIVE ${FONTI} ${FONTI}/*.md)
foreach(pagina IN LISTS pagine)
  execute_process(
    COMMAND ${CMARK} --unsafe -e table ${FONTI}/${pagina}
    OUTPUT_VARIABLE corpo
    COMMAND_ERROR_IS_FATAL ANY)
  string(REGEX REPLACE "(href=\"[^\":]*)\\.md\"" "\\1.html\"" corpo "${corpo}")
  string(REGEX REPLACE "\\.md$" ".html" html ${pagina})
  string(REGEX MATCH "<h1>([^\n]*)</h1>" intestazione "${corpo}")
  file(WRITE ${MANUALE}/${html} "<!DOCTYPE html>
<html lang=\"it\">
<head>
<meta charset=\"utf-8\">
<title>${CMAKE_MATCH_1}</title>
<style>
table { border-collapse: collapse }
th, td { border: 1px solid gray; padding: 3px 6px; text-align: left }
body { max-width: 56em }
img { max-width: 100% }
</style>
</head>
<body>
${corpo}</body>
</html>
")
endforeach()
file(GLOB_RECURSE immagini RELATIVE ${FONTI} ${FONTI}/*.png)
foreach(immagine IN LISTS immagini)
  get_filename_component(cartella ${immagine} DIRECTORY)
  file(COPY ${FONTI}/${immagine} DESTINATION ${MANUALE}/${cartella})
endforeach()
