#include "installer/Programma.h"

#include "installer/Contenuto.h"
#include "installer/File.h"
#include "installer/Guasto.h"

#include "pannello/logic/Versione.h"
#include "shell/logic/Percorsi.h"
#include "shell/store/Database.h"
#include "shell/store/EngineError.h"

#include <QCoreApplication>
#include <QDir>
#include <QVersionNumber>

namespace zuvora::installa {
using namespace Qt::Literals::StringLiterals;

namespace {
constexpr auto prefissoVersione = "Versione "_L1;

// Data of a later program must not be opened with this one.
void rifiutaDatiPiuNuovi(const QString &cartella) {
    const QString file = percorsoIn(cartella, archivioZuvora.file);
    if (!QFileInfo(file).isFile())
        throw Guasto{
            u"Nella cartella %1 non c'è un'installazione: manca %2."_s.arg(nativo(cartella), archivioZuvora.file)};
    Database db = Database::apriInLettura(file);
    const auto righe = db.leggiTesti(u"SELECT Numero FROM Versione"_s);
    const QString etichetta = righe.isEmpty() ? QString() : righe.first().first();
    const auto dati = QVersionNumber::fromString(
        QStringView(etichetta).sliced(etichetta.startsWith(prefissoVersione) ? prefissoVersione.size() : 0));
    const auto nostra = QVersionNumber::fromString(QStringView(versioneCorrente).sliced(prefissoVersione.size()));
    if (dati > nostra)
        throw Guasto{u"I dati della cartella %1 sono della versione %2, più recente di questo programma (%3)."_s.arg(
            nativo(cartella), dati.toString(), nostra.toString())};
}

// The new part lies beside the old one until it is whole.
void sostituisci(const QString &da, const QString &a) {
    const QString nuovo = a + u".nuovo"_s;
    const QString vecchio = a + u".vecchio"_s;
    rimuovi(nuovo);
    rimuovi(vecchio);
    copia(da, nuovo);
    sincronizzaTutto(QFileInfo(nuovo).isDir() ? nuovo : QFileInfo(nuovo).path());
    if (QFileInfo::exists(a) && QFileInfo(a).isDir())
        sposta(a, vecchio); // a folder can't be replaced in one move
    sposta(nuovo, a);
    rimuovi(vecchio);
}

int aggiorna(const QString &cartella, const QString &origine) {
    rifiutaDatiPiuNuovi(cartella);
    if (QFileInfo(origine).canonicalFilePath() == QFileInfo(cartella).canonicalFilePath())
        throw Guasto{u"La cartella %1 è quella da cui si aggiorna."_s.arg(nativo(cartella))};
    const QStringList parti = partiDelProgramma(origine);
    if (!parti.contains(u"zuvora"_s))
        throw Guasto{u"Nella cartella %1 manca il programma zuvora."_s.arg(nativo(origine))};
    for (const QString &parte : parti)
        sostituisci(origine + u'/' + parte, cartella + u'/' + parte);
    return static_cast<int>(parti.size());
}
} // namespace

QStringList partiDelProgramma(const QString &origine) {
    const QDir da(origine);
    QStringList parti =
        da.entryList({u"zuvora"_s, u"zuvora-installa"_s, u"zuvora-biglietto"_s, u"libzuvora-*.so"_s}, QDir::Files);
    for (const QString &sottocartella : {u"plugins"_s, u"guida"_s})
        if (QFileInfo(da.filePath(sottocartella)).isDir())
            parti += sottocartella;
    return parti;
}

Esito aggiornaInstallazione(const QString &cartella, const QString &origine) {
    const QString dove = QDir::cleanPath(QFileInfo(cartella).absoluteFilePath());
    try {
        const int parti = aggiorna(dove, origine.isEmpty() ? QCoreApplication::applicationDirPath() : origine);
        return {true,
                u"Programma aggiornato nella cartella %1: %2 parti. I dati sono rimasti com'erano."_s.arg(nativo(dove))
                    .arg(parti)};
    } catch (const Guasto &guasto) {
        return {false, u"Il programma non è stato aggiornato. "_s + guasto.frase};
    } catch (const EngineError &errore) {
        return {false, u"Il programma non è stato aggiornato. "_s + errore.frase()};
    }
}

} // namespace zuvora::installa
