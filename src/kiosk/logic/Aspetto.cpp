#include "kiosk/logic/Aspetto.h"

#include "kiosk/logic/ConfigurazioneTotem.h"
#include "shell/logic/Numeri.h"
#include "shell/store/Riga.h"

#include <QDate>
#include <QLocale>
#include <cmath>
#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

struct ColonneStile {
    CampoTotem font, misura, colore, grassetto, italico;
    QStringView di; // ends the names of its boxes
};

constexpr ColonneStile perTitolo = {CampoTotem::FontTitolo,          CampoTotem::FontSizeTitolo,
                                    CampoTotem::FontForecolorTitolo, CampoTotem::FontBoldTitolo,
                                    CampoTotem::FontItalicTitolo,    u"del titolo"};
constexpr ColonneStile perData = {CampoTotem::FontData,     CampoTotem::FontSizeData,   CampoTotem::FontForecolorData,
                                  CampoTotem::FontBoldData, CampoTotem::FontItalicData, u"della data"};
constexpr ColonneStile perPulsanti = {CampoTotem::Font,     CampoTotem::FontSize,   CampoTotem::FontForecolor,
                                      CampoTotem::FontBold, CampoTotem::FontItalic, u"dei pulsanti"};

constexpr int misuraMassima = 1000; // points; larger letters fill no screen

std::optional<int> interoFra(const QString &testo, double minimo, double massimo) {
    const auto numero = numeroDi(testo);
    if (!numero)
        return std::nullopt;
    const double intero = std::nearbyint(*numero); // halves go to the even neighbour
    return intero >= minimo && intero <= massimo ? std::optional(static_cast<int>(intero)) : std::nullopt;
}

class Lettore {
public:
    Lettore(const Riga &riga, AspettoTotem &aspetto) : m_riga(riga), m_aspetto(aspetto) {}

    void leggi(StileTotem &stile, const ColonneStile &colonne) {
        stile.font = m_riga.testo(colonna(colonne.font).nome, u"Arial"_s);
        if (!numero(stile.misura, colonne.misura, u"10"_s, 1, misuraMassima))
            m_aspetto.rifiutati << u"misura del font %1"_s.arg(colonne.di);
        stile.coloreDato = m_riga.testo(colonna(colonne.colore).nome, u"0"_s) != QString();
        if (stile.coloreDato && !numero(stile.colore, colonne.colore, u"0"_s, std::numeric_limits<int>::min(),
                                        std::numeric_limits<int>::max()))
            m_aspetto.rifiutati << u"colore %1"_s.arg(colonne.di);
        stile.grassetto = m_riga.vero(colonna(colonne.grassetto).nome);
        stile.italico = m_riga.vero(colonna(colonne.italico).nome);
    }

private:
    bool numero(int &valore, CampoTotem campo, const QString &seNull, double minimo, double massimo) {
        const auto letto = interoFra(m_riga.testo(colonna(campo).nome, seNull), minimo, massimo);
        valore = letto.value_or(valore);
        return letto.has_value();
    }

    const Riga &m_riga;
    AspettoTotem &m_aspetto;
};

} // namespace

AspettoTotem leggiAspetto(const QString &cartella) {
    const Riga riga = leggiRiga(cartella, tabellaTotem.toString());
    AspettoTotem aspetto;
    aspetto.sfondo = riga.testo(colonna(CampoTotem::SfondoTotem).nome);
    aspetto.titolo = riga.testo(colonna(CampoTotem::TitoloTotem).nome);
    Lettore lettore(riga, aspetto);
    lettore.leggi(aspetto.stileTitolo, perTitolo);
    lettore.leggi(aspetto.stileData, perData);
    lettore.leggi(aspetto.stilePulsanti, perPulsanti);
    return aspetto;
}

QString dataInParole(const QDate &data) {
    return QLocale(QLocale::Italian, QLocale::Italy).toString(data, u"dddd dd MMMM yyyy"_s);
}

} // namespace zuvora
