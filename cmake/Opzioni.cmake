# The one place for compiler flags: every target links zuvora_opzioni.
add_library(zuvora_opzioni INTERFACE)
target_compile_features(zuvora_opzioni INTERFACE cxx_std_20)
target_compile_options(zuvora_opzioni INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual
                                                -Wconversion -Wno-sign-conversion)
target_compile_definitions(
  zuvora_opzioni
  INTERFACE QT_NO_CAST_FROM_ASCII
            QT_NO_CAST_TO_ASCII
            QT_NO_URL_CAST_FROM_STRING
            QT_NO_KEYWORDS
            QT_NO_FOREACH
            QT_NO_CONTEXTLESS_CONNECT
            QT_STRICT_ITERATORS)
if(ZUVORA_AVVISI_ERRORI)
  target_compile_options(zuvora_opzioni INTERFACE -Werror)
endif()
if(ZUVORA_SANITIZER)
  set(flag_sanitizer -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  target_compile_options(zuvora_opzioni INTERFACE ${flag_sanitizer})
  target_link_options(zuvora_opzioni INTERFACE ${flag_sanitizer})
endif()

# zuvora_libreria(name LINK targets... SOURCES files...): a room's target. The include root is src/, so that an
# include names its room ("shell/store/Data.h").
function(zuvora_libreria nome)
  cmake_parse_arguments(A "" "" "SOURCES;LINK" ${ARGN})
  add_library(${nome} STATIC ${A_SOURCES})
  target_include_directories(${nome} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  target_link_libraries(${nome} PUBLIC ${A_LINK} PRIVATE zuvora_opzioni)
endfunction()
