#include "installer/Esempio.h"

#include "installer/File.h"
#include "installer/Guasto.h"
#include "installer/Percorsi.h"

#include <QDirIterator>
#include <QFile>
#include <algorithm>

namespace zuvora::installa {
using namespace Qt::Literals::StringLiterals;

namespace {
// A playlist is 8-bit text with CR LF; its paths name the folder of the installation.
QByteArray playlist(const QByteArray &modello, const QString &cartella) {
    QByteArray testo;
    const auto righe = QString::fromUtf8(modello).split(u'\n', Qt::SkipEmptyParts);
    for (const QString &riga : righe) {
        const QString percorso = espandi(riga.trimmed(), cartella);
        const auto estraneo = [](QChar c) { return c.unicode() > 0xFF || (c.unicode() >= 0x80 && c.unicode() < 0xA0); };
        if (const auto *c = std::find_if(percorso.begin(), percorso.end(), estraneo); c != percorso.end())
            throw Guasto{u"Il nome della cartella contiene il carattere «%1», che le playlist di esempio non possono "
                         "contenere: scegliere un altro nome."_s.arg(*c)};
        testo += percorso.toLatin1() + "\r\n";
    }
    return testo;
}
} // namespace

void scriviEsempio(const QString &destinazione, const QString &cartella) {
    const QString radice = u":/zuvora-installa/esempio"_s;
    QDirIterator file(radice, QDir::Files, QDirIterator::Subdirectories);
    while (file.hasNext()) {
        const QString relativo = file.next().mid(radice.size());
        if (relativo.endsWith(".csv"_L1))
            continue; // rows of the databases
        QFile origine(file.filePath());
        if (!origine.open(QIODevice::ReadOnly))
            throw Guasto{u"Lo strumento è incompleto: manca %1."_s.arg(relativo)};
        const bool elenco = relativo.endsWith(".zvi"_L1) || relativo.endsWith(".zvv"_L1);
        const QByteArray contenuto = origine.readAll();
        creaCartella(QFileInfo(destinazione + relativo).path());
        scriviNuovo(destinazione + relativo, elenco ? playlist(contenuto, cartella) : contenuto);
    }
}

} // namespace zuvora::installa
