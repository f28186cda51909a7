# Makes a page of the guide: the chapter's text between a head with its title and a line that leads back.
execute_process(
  COMMAND ${cmark} -e table ${capitolo}
  OUTPUT_VARIABLE testo
  RESULT_VARIABLE esito)
if(NOT esito EQUAL 0)
  message(FATAL_ERROR "${cmark} failed on ${capitolo}")
endif()
file(STRINGS ${capitolo} righe LIMIT_COUNT 1 ENCODING UTF-8)
string(REGEX REPLACE "^# " "" titolo "${righe}")
set(indietro "<nav><a href=\"index.html\">Indice della guida</a></nav>")
if(capitolo MATCHES "/index.md$")
  set(indietro "")
endif()
get_filename_component(cartella ${pagina} DIRECTORY)
file(MAKE_DIRECTORY ${cartella})
file(
  WRITE ${pagina}
  "<!DOCTYPE html>
<html lang=\"it\">
<head>
<meta charset=\"utf-8\">
<title>${titolo}</title>
<link rel=\"stylesheet\" href=\"stile.css\">
</head>
<body>
${indietro}
${testo}</body>
</html>
")
