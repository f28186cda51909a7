# Precompiled headers: of Qt and the standard library only, never our own, made once for a kind of target and shared.
# A kind names no header that its targets couldn't include by themselves: the logic's knows no widgets.
option(ZUVORA_PRECOMPILATI "Precompile the headers of Qt and the standard library" ON)

set(precompilati_std
    <algorithm> <array> <cmath> <cstdint> <functional> <memory> <optional> <span> <string> <utility> <vector>)
set(precompilati_core
    ${precompilati_std}
    <QByteArray> <QDateTime> <QDir> <QFile> <QFileInfo> <QHash> <QList> <QMap> <QObject> <QSet> <QString>
    <QStringList> <QStringView> <QUrl> <QVariant>)
set(precompilati_widgets ${precompilati_core} <QApplication> <QDialog> <QImage> <QLabel> <QLineEdit> <QPainter>
    <QPointer> <QPushButton> <QRadioButton> <QTimer> <QWidget>)

# zuvora_tipo_precompilato(name LINK targets... HEADERS headers...): a kind, held by a library that does nothing else.
function(zuvora_tipo_precompilato tipo)
  cmake_parse_arguments(A "" "" "LINK;HEADERS" ${ARGN})
  set(sorgente ${CMAKE_BINARY_DIR}/precompilati/${tipo}.cpp)
  file(CONFIGURE OUTPUT ${sorgente} CONTENT "// Holds the precompiled headers.\n")
  add_library(zuvora_pre_${tipo} OBJECT EXCLUDE_FROM_ALL ${sorgente})
  target_link_libraries(zuvora_pre_${tipo} PRIVATE ${A_LINK} zuvora_opzioni)
  target_precompile_headers(zuvora_pre_${tipo} PRIVATE ${A_HEADERS})
endfunction()

# Whether one of the targets leads to `cercato`.
function(zuvora_raggiunge esito cercato)
  set(${esito} FALSE PARENT_SCOPE)
  foreach(t IN LISTS ARGN)
    if(t STREQUAL cercato)
      set(${esito} TRUE PARENT_SCOPE)
      return()
    endif()
    if(t MATCHES "^(zuvora_|Qt6::)" AND TARGET ${t})
      get_target_property(sotto ${t} INTERFACE_LINK_LIBRARIES)
      zuvora_raggiunge(trovato ${cercato} ${sotto})
      if(trovato)
        set(${esito} TRUE PARENT_SCOPE)
        return()
      endif()
    endif()
  endforeach()
endfunction()

# zuvora_precompila(name prefix linked targets...): gives a target the kind that fits what it links, prefix + "widgets"
# or prefix + "core".
function(zuvora_precompila nome prefisso)
  if(NOT ZUVORA_PRECOMPILATI)
    return()
  endif()
  # One that doesn't fit is told, and costs time only.
  target_compile_options(${nome} PRIVATE -Wno-error=invalid-pch)
  zuvora_raggiunge(finestre Qt6::Widgets ${ARGN})
  if(finestre)
    target_precompile_headers(${nome} REUSE_FROM zuvora_pre_${prefisso}widgets)
  else()
    target_precompile_headers(${nome} REUSE_FROM zuvora_pre_${prefisso}core)
  endif()
endfunction()

if(ZUVORA_PRECOMPILATI)
  zuvora_tipo_precompilato(core LINK Qt6::Core HEADERS ${precompilati_core})
  zuvora_tipo_precompilato(widgets LINK Qt6::Widgets HEADERS ${precompilati_widgets})
endif()
