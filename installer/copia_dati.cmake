# Puts the folders of pictures and sounds into `destinazione`, without what is no longer in `dati`.
foreach(cartella IN ITEMS ZuvoraDecorazioni/Cornici ZuvoraDecorazioni/Banner ZuvoraDecorazioni/Elementi ZuvoraSfondiHD Suoni)
  file(REMOVE_RECURSE ${destinazione}/${cartella})
  file(MAKE_DIRECTORY ${destinazione}/${cartella})
  file(GLOB file ${dati}/${cartella}/*)
  if(file)
    file(COPY ${file} DESTINATION ${destinazione}/${cartella})
  endif()
endforeach()
