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
if(CMAKE_UNITY_BUILD)
  # Between files that are compiled together these find what isn't there; .ci/run compiles them one by one too.
  target_compile_options(zuvora_opzioni INTERFACE -Wno-shadow -Wno-subobject-linkage)
endif()
if(ZUVORA_SANITIZER)
  # The tests' own code isn't hot, and isn't what is searched for undefined behaviour: it compiles in half the time.
  define_property(TARGET PROPERTY ZUVORA_PROVA INITIALIZE_FROM_VARIABLE QUESTO_ZUVORA_PROVA)
  set(flag_programma "-fsanitize=undefined;-fno-sanitize-recover=undefined")
  target_compile_options(zuvora_opzioni INTERFACE -fsanitize=address -fno-omit-frame-pointer
                                                  "$<IF:$<BOOL:$<TARGET_PROPERTY:ZUVORA_PROVA>>,-O0,${flag_programma}>")
  target_link_options(zuvora_opzioni INTERFACE -fsanitize=address,undefined)
  find_program(ZUVORA_GOLD ld.gold)
  if(ZUVORA_GOLD)
    target_link_options(zuvora_opzioni INTERFACE -fuse-ld=gold)
  endif()
endif()

# zuvora_radice(name): an include root of the target's own, which holds nothing but its folder under src/, so that an
# include names its room ("shell/store/Data.h") and finds only the rooms that the target links.
function(zuvora_radice nome)
  set(radice ${CMAKE_BINARY_DIR}/radici/${nome})
  file(RELATIVE_PATH stanza ${PROJECT_SOURCE_DIR}/src ${CMAKE_CURRENT_SOURCE_DIR})
  get_filename_component(sopra ${radice}/${stanza} DIRECTORY)
  file(MAKE_DIRECTORY ${sopra})
  file(CREATE_LINK ${CMAKE_CURRENT_SOURCE_DIR} ${radice}/${stanza} SYMBOLIC)
  target_include_directories(${nome} PUBLIC ${radice})
endfunction()

# zuvora_libreria(name LINK targets... SOURCES files...): the logic or the forms of a room, in the folder that calls it.
function(zuvora_libreria nome)
  cmake_parse_arguments(A "" "" "SOURCES;LINK" ${ARGN})
  add_library(${nome} STATIC ${A_SOURCES})
  zuvora_radice(${nome})
  target_link_libraries(${nome} PUBLIC ${A_LINK} PRIVATE zuvora_opzioni)
  zuvora_precompila(${nome} "" ${A_LINK})
endfunction()
