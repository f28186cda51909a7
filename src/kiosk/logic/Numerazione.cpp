#include "kiosk/logic/Numerazione.h"

#include "shell/logic/Numeri.h"
#include "shell/store/Data.h"
#include "shell/store/Riga.h"

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

constexpr std::array<QStringView, serviziNumerati> colonne = {u"P1",  u"P2",  u"P3",  u"P4",  u"P5",  u"P6",  u"P7",
                                                              u"P8",  u"P9",  u"P10", u"P11", u"P12", u"P13", u"P14",
                                                              u"P15", u"P16", u"P17", u"P18", u"P19", u"P20"};

QString nomeTabella(TabellaNumeri tabella) {
    return tabella == TabellaNumeri::Numerazione ? u"Numerazione"_s : u"NumerazioneIniziale"_s;
}

} // namespace

ColonnaServizi nomiServizi(const QString &cartella) {
    Data dato;
    Recordset &righe = apri(dato, cartella, u"Select [Servizio] from Servizi"_s);
    ColonnaServizi nomi;
    for (QString &nome : nomi) {
        if (righe.Eof())
            break;
        nome = testoDi(righe[u"Servizio"].Value(), u""_s);
        righe.MoveNext();
    }
    return nomi;
}

ColonnaServizi leggiNumeri(const QString &archivio, TabellaNumeri tabella) {
    const Riga riga = leggiRigaDi(archivio, nomeTabella(tabella));
    ColonnaServizi numeri;
    for (std::size_t i = 0; i < numeri.size(); ++i)
        numeri[i] = riga.testo(colonne[i]);
    return numeri;
}

QString numeroDaScrivere(const QString &testo) {
    return eNumerico(testo) ? testo : u"0"_s;
}

void scriviNumero(const QString &archivio, int servizio, const QString &numero) {
    scriviRigaDi(archivio, nomeTabella(TabellaNumeri::Numerazione),
                 {{colonne.at(static_cast<std::size_t>(servizio - 1)), numero}});
}

void scriviNumeriIniziali(const QString &archivio, const ColonnaServizi &numeri) {
    QList<Assegno> valori;
    for (std::size_t i = 0; i < numeri.size(); ++i)
        valori.append({colonne[i], numeri[i]});
    scriviRigaDi(archivio, nomeTabella(TabellaNumeri::NumerazioneIniziale), valori);
}

} // namespace zuvora
