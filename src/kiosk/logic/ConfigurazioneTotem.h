#pragma once

#include <QString>
#include <QStringView>
#include <array>

namespace zuvora {

inline constexpr QStringView tabellaTotem = u"ConfigurazioneTotem";

// The columns of the kiosk's one row.
enum class CampoTotem {
    RisoluzioneTotem,
    PercorsoReteTotem,
    SfondoTotem,
    TitoloTotem,
    FontTitolo,
    FontSizeTitolo,
    FontForecolorTitolo,
    FontBoldTitolo,
    FontItalicTitolo,
    FontData,
    FontSizeData,
    FontForecolorData,
    FontBoldData,
    FontItalicData,
    Font,
    FontSize,
    FontForecolor,
    FontBold,
    FontItalic,
    TestoVisibile,
    DataVisibile
};

enum class GenereTotem { Scelta, Testo, Misura, Logico };

struct ColonnaTotem {
    QStringView nome; // other programs spell it in other cases
    GenereTotem genere;
    QStringView primo; // what the box shows before it is filled
};

inline constexpr std::array<ColonnaTotem, 21> colonneTotem = {{
    {u"RisoluzioneTotem", GenereTotem::Scelta, u""},
    {u"PercorsoReteTotem", GenereTotem::Testo, u""},
    {u"SfondoTotem", GenereTotem::Testo, u""},
    {u"TitoloTotem", GenereTotem::Testo, u""},
    {u"FontTitolo", GenereTotem::Testo, u"Arial"},
    {u"FontSizeTitolo", GenereTotem::Misura, u"10"},
    {u"FontForecolorTitolo", GenereTotem::Testo, u"0"},
    {u"FontBoldTitolo", GenereTotem::Logico, u"0"},
    {u"FontItalicTitolo", GenereTotem::Logico, u"0"},
    {u"FontData", GenereTotem::Testo, u"Arial"},
    {u"FontSizeData", GenereTotem::Misura, u"10"},
    {u"FontForecolorData", GenereTotem::Testo, u"0"},
    {u"FontBoldData", GenereTotem::Logico, u"0"},
    {u"FontItalicData", GenereTotem::Logico, u"0"},
    {u"Font", GenereTotem::Testo, u"Arial"},
    {u"FontSize", GenereTotem::Misura, u"10"},
    {u"FontForecolor", GenereTotem::Testo, u"0"},
    {u"FontBold", GenereTotem::Logico, u"0"},
    {u"FontItalic", GenereTotem::Logico, u"0"},
    {u"TestoVisibile", GenereTotem::Logico, u"0"},
    {u"DataVisibile", GenereTotem::Logico, u"0"},
}};

inline constexpr std::size_t indice(CampoTotem campo) {
    return static_cast<std::size_t>(campo);
}
inline constexpr const ColonnaTotem &colonna(CampoTotem campo) {
    return colonneTotem[indice(campo)];
}

// What the form's boxes hold, by column: a box's text, "1" or "0" of a check box, the index of the chosen screen or
// nothing.
class ContenutoTotem {
public:
    ContenutoTotem();
    QString &operator[](CampoTotem campo) { return m_testi[indice(campo)]; }
    const QString &operator[](CampoTotem campo) const { return m_testi[indice(campo)]; }

private:
    std::array<QString, colonneTotem.size()> m_testi;
};

} // namespace zuvora
