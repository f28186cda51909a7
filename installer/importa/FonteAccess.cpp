#include "installer/importa/FonteAccess.h"

#include "installer/Guasto.h"
#include "installer/Interruzione.h"
#include "installer/importa/Testata.h"

#include <QCoreApplication>
#include <QDir>
#include <QProcess>

namespace zuvora::installa {
using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int silenzioMassimo = 60'000; // milliseconds without a byte

// Goes with whoever stopped listening to it.
class Lettore : public QProcess {
public:
    Lettore() = default;
    ~Lettore() override {
        kill();
        waitForFinished();
    }
    Lettore(const Lettore &) = delete;
    Lettore &operator=(const Lettore &) = delete;
};

[[noreturn]] void danneggiato(const QString &file) {
    throw Guasto{u"%1 è danneggiato: non è stato possibile leggerlo tutto."_s.arg(QDir::toNativeSeparators(file))};
}

// One message, or nothing while it isn't there whole.
bool leggiUno(QDataStream &s, const AscoltoAccess &ascolto, bool &finito, bool &guasto) {
    s.startTransaction();
    quint8 quale = 0;
    TabellaAccess tabella;
    QStringList riga;
    QString nome;
    s >> quale;
    switch (Messaggio(quale)) {
    case Messaggio::Tabella:
        s >> tabella;
        break;
    case Messaggio::Riga:
        s >> riga;
        break;
    case Messaggio::Collegata:
        s >> nome;
        break;
    case Messaggio::Fine:
    case Messaggio::Guasto:
        break;
    }
    if (!s.commitTransaction())
        return false;
    switch (Messaggio(quale)) {
    case Messaggio::Tabella:
        ascolto.tabella(tabella);
        break;
    case Messaggio::Riga:
        ascolto.riga(riga);
        break;
    case Messaggio::Collegata:
        ascolto.collegata(nome);
        break;
    case Messaggio::Fine:
        finito = true;
        break;
    case Messaggio::Guasto:
        guasto = true;
        break;
    }
    return true;
}
} // namespace

void ascoltaAccess(const QString &file, const AscoltoAccess &ascolto, const QString &programma) {
    if (const QString rifiuto = rifiutoAccess(file); !rifiuto.isEmpty())
        throw Guasto{rifiuto};
    Lettore lettore;
    lettore.setStandardErrorFile(QProcess::nullDevice());
    lettore.start(programma.isEmpty() ? QCoreApplication::applicationFilePath() : programma, {parolaLettore, file});
    if (!lettore.waitForStarted())
        throw Guasto{u"Impossibile avviare la lettura del vecchio database."_s};
    QDataStream s(&lettore);
    bool finito = false;
    bool guasto = false;
    while (!finito && !guasto) {
        if (s.status() == QDataStream::ReadCorruptData)
            danneggiato(file);
        if (lettore.bytesAvailable() > 0 && leggiUno(s, ascolto, finito, guasto))
            continue;
        s.resetStatus();
        fermaSeInterrotto();
        if (!lettore.waitForReadyRead(silenzioMassimo) && lettore.bytesAvailable() == 0)
            danneggiato(file); // it crashed, or hangs
    }
    lettore.waitForFinished(silenzioMassimo);
    if (guasto)
        danneggiato(file);
}

} // namespace zuvora::installa
