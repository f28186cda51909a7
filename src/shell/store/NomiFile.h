#pragma once

#include <QStringView>

namespace zuvora {

// The one name of each folder and file of the product, in the form that file systems of any kind find it by.
namespace nomi {

inline constexpr QStringView archivio = u"Zuvora.mdb";           // in the application folder
inline constexpr QStringView archivioTotem = u"TotemZuvora.mdb"; // in the kiosk's folder
inline constexpr QStringView biglietto = u"Ticket.lbl";          // in the kiosk's folder
inline constexpr QStringView cartellaTotem = u"Totem";           // the kiosk's folder of a new installation
inline constexpr QStringView archivioTotemNuovo = u"Totem/TotemZuvora.mdb";
inline constexpr QStringView bigliettoNuovo = u"Totem/Ticket.lbl";
inline constexpr QStringView decorazioni = u"ZuvoraDecorazioni"; // folders of the application folder
inline constexpr QStringView cornici = u"ZuvoraDecorazioni/Cornici";
inline constexpr QStringView banner = u"ZuvoraDecorazioni/Banner";
inline constexpr QStringView elementi = u"ZuvoraDecorazioni/Elementi";
inline constexpr QStringView sfondi = u"ZuvoraSfondiHD";
inline constexpr QStringView suoni = u"Suoni";
inline constexpr QStringView sfondoBase = u"ZuvoraSfondiHD/FH_grigio_8post_.jpg"; // of a layout without its own
inline constexpr QStringView corniceLibera = u"ZuvoraDecorazioni/Cornici/stondata.gif";
inline constexpr QStringView frase = u"FraseTTS.txt";
inline constexpr QStringView aiutoVoce = u"th19.rtf";
inline constexpr QStringView immaginiMancanti = u"FileImmaginiMancanti.txt"; // in the current folder of the process
inline constexpr QStringView videoMancanti = u"FileVideoMancanti.txt";

} // namespace nomi

} // namespace zuvora
