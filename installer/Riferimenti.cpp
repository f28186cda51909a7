#include "installer/Riferimenti.h"

#include "installer/ControlloFile.h"
#include "installer/Csv.h"
#include "installer/File.h"

#include "shell/logic/Percorsi.h"
#include "shell/store/NomiFile.h"

#include <QDir>
#include <QFileInfo>
#include <array>

namespace zuvora::installa {
using namespace Qt::Literals::StringLiterals;

namespace {
struct Riferimento {
    QLatin1StringView tabella;
    QLatin1StringView colonna;
    Atteso atteso = Atteso::File;
};

// What the designer stores as background of a layout that never had one.
constexpr auto nessunoSfondo = "Label2"_L1;

constexpr std::array riferimenti{
    Riferimento{"Configurazione"_L1, "dindon"_L1},
    Riferimento{"Configurazione"_L1, "playlistFoto"_L1},
    Riferimento{"Configurazione"_L1, "playlistVideo"_L1},
    Riferimento{"Configurazione"_L1, "cartellamp3"_L1, Atteso::Cartella},
    Riferimento{"ConfigurazioneTotem"_L1, "SfondoTotem"_L1, Atteso::SfondoTotem},
    Riferimento{"Servizi"_L1, "Percorsofoto"_L1, Atteso::Immagine},
    Riferimento{"DinDon"_L1, "DinDon"_L1},
};

void controllaRiferimento(ControlloArchivio &zuvora, Database &db, const Riferimento &r) {
    if (!zuvora.ha(r.tabella, r.colonna))
        return;
    int riga = 0;
    for (const QStringList &valori :
         db.leggiTesti(u"SELECT [%1] FROM [%2] ORDER BY rowid"_s.arg(r.colonna, r.tabella))) {
        ++riga;
        const QString &valore = valori.first();
        if (valore.isEmpty() || valore == nessunoSfondo)
            continue;
        const QString difetto = difettoDi(valore, r.atteso);
        if (!difetto.isEmpty())
            zuvora.segnala(u"tabella %1, riga %2: %3"_s.arg(r.tabella, QString::number(riga), difetto));
    }
}

// The pictures of the product can't be removed from the catalogue, and the user's rows begin behind them.
void controllaPredefinite(ControlloArchivio &zuvora, Database &db, const QSet<QString> &presenti) {
    const Csv csv = leggiCsv(righeDi("Decorazioni"_L1), u"Decorazioni"_s);
    qsizetype mancanti = 0;
    for (const QStringList &riga : csv.righe)
        mancanti += presenti.contains(riga.value(csv.colonne.indexOf(u"ID"_s))) ? 0 : 1;
    if (mancanti > 0)
        zuvora.segnala(u"tabella Decorazioni: immagini preimpostate mancanti: %1"_s.arg(mancanti));
    if (!zuvora.ha("sqlite_sequence"_L1, "seq"_L1))
        return;
    const QList<QStringList> ultima =
        db.leggiTesti(u"SELECT max(seq) FROM sqlite_sequence WHERE name = 'Decorazioni'"_s);
    if (ultima.first().first().toInt() < ultimaDecorazione)
        zuvora.segnala(
            u"tabella Decorazioni: le immagini aggiunte non inizierebbero da %1"_s.arg(ultimaDecorazione + 1));
}

void controllaCatalogo(ControlloArchivio &zuvora, Database &db, const QString &cartella) {
    if (!zuvora.ha("Decorazioni"_L1, "File"_L1) || !zuvora.ha("Decorazioni"_L1, "Tipo"_L1))
        return;
    QSet<QString> presenti;
    for (const QStringList &riga : db.leggiTesti(u"SELECT ID, File, Tipo FROM Decorazioni ORDER BY ID"_s)) {
        presenti += riga.at(0);
        const QStringView categoria = cartellaDecorazioni(riga.at(2).toInt());
        const QString file = u"%1/%2/%3"_s.arg(cartella, categoria, riga.at(1));
        if (categoria.isEmpty())
            zuvora.segnala(u"tabella Decorazioni, ID %1: il Tipo non è una categoria"_s.arg(riga.at(0)));
        else if (const QString difetto = difettoDi(nativo(file), Atteso::Immagine); !difetto.isEmpty())
            zuvora.segnala(u"tabella Decorazioni, ID %1: %2"_s.arg(riga.at(0), difetto));
    }
    controllaPredefinite(zuvora, db, presenti);
}

// The folder of the kiosk as the row has it; empty when it is not set.
QString percorsoTotem(Database &db) {
    const QList<QStringList> righe = db.leggiTesti(u"SELECT PercorsoReteTotem FROM ConfigurazioneTotem LIMIT 1"_s);
    return righe.isEmpty() ? QString() : righe.first().first();
}
} // namespace

void controllaRiferimenti(ControlloArchivio &zuvora, const QString &cartella) {
    zuvora.controlla([&](Database &db) {
        for (const Riferimento &r : riferimenti)
            controllaRiferimento(zuvora, db, r);
        for (const Tabella &layout : archivioZuvora.tabelle)
            controllaRiferimento(zuvora, db, {layout.nome, "PercorsoImmagine"_L1, Atteso::Immagine});
        controllaCatalogo(zuvora, db, cartella);
    });
}

std::optional<QString> archivioDelTotem(ControlloArchivio &zuvora, const QString &cartella) {
    const Percorsi percorsi;
    QString percorso = percorsi.unisci(cartella, nomi::cartellaTotem);
    if (zuvora.ha("ConfigurazioneTotem"_L1, "PercorsoReteTotem"_L1))
        zuvora.controlla([&](Database &db) { percorso = percorsoTotem(db); });
    if (percorso.isEmpty()) {
        zuvora.segnala(u"il percorso di rete del totem non è impostato"_s);
        return std::nullopt;
    }
    const auto locale = percorsi.nativo(percorso);
    if (!locale) {
        zuvora.annota(u"il totem è su un'altra macchina, da qui non si può verificare: %1"_s.arg(percorso));
        return std::nullopt;
    }
    const auto esame = percorsi.esamina(percorsi.unisci(percorso, nomi::archivioTotem));
    return esame.percorso.isEmpty() ? percorsi.unisci(*locale, nomi::archivioTotem) : esame.percorso;
}

} // namespace zuvora::installa
