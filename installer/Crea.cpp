#include "installer/Crea.h"

#include "installer/Archivi.h"
#include "installer/Contenuto.h"
#include "installer/Esempio.h"
#include "installer/File.h"
#include "installer/Guasto.h"

#include <QCoreApplication>
#include <QDir>
#include <QTemporaryDir>

namespace zuvora::installa {
using namespace Qt::Literals::StringLiterals;

namespace {
QString nativo(const QString &percorso) {
    return QDir::toNativeSeparators(percorso);
}

void rifiutaCartellaOccupata(const QString &cartella) {
    const QFileInfo info(cartella);
    if (info.exists() && !info.isDir())
        throw Guasto{u"%1 non è una cartella: indicare una cartella nuova."_s.arg(nativo(cartella))};
    for (const QString &luogo : {cartella, cartella + u"/Totem"_s}) {
        const QStringList archivi = QDir(luogo).entryList({u"*.mdb"_s}, QDir::Files | QDir::Hidden | QDir::System);
        if (!archivi.isEmpty())
            throw Guasto{u"Nella cartella %1 c'è già un archivio (%2): nulla è stato modificato."_s.arg(
                nativo(luogo), archivi.first())};
    }
}

// The folders that making `cartella` adds, gone again unless kept.
class CartellaNuova {
public:
    explicit CartellaNuova(const QString &cartella) {
        for (QString c = cartella; !QFileInfo::exists(c); c = QFileInfo(c).path())
            m_aggiunte += c;
        try {
            creaCartella(cartella);
        } catch (...) {
            togli();
            throw;
        }
    }
    ~CartellaNuova() {
        if (!m_tenuta)
            togli();
    }
    CartellaNuova(const CartellaNuova &) = delete;
    CartellaNuova &operator=(const CartellaNuova &) = delete;
    void tieni() { m_tenuta = true; }

private:
    // Only empty ones, innermost first: what somebody else put there meanwhile stays.
    void togli() const {
        for (const QString &c : m_aggiunte)
            QDir().rmdir(c);
    }
    QStringList m_aggiunte;
    bool m_tenuta = false;
};

// Moves what was prepared into its place, and back out again unless kept.
class Pubblicazione {
public:
    Pubblicazione(QString da, QString a) : m_da(std::move(da)), m_a(std::move(a)) {}
    ~Pubblicazione() {
        if (!m_tenuta)
            for (const QString &voce : m_spostate)
                rimuovi(m_a + u'/' + voce);
    }
    Pubblicazione(const Pubblicazione &) = delete;
    Pubblicazione &operator=(const Pubblicazione &) = delete;

    void tutto() {
        constexpr auto tutte = QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden | QDir::System;
        QStringList voci = QDir(m_da).entryList(tutte, QDir::Name);
        // The settings database makes a folder an installation: it comes last.
        voci.removeOne(archivioZuvora.file);
        voci += archivioZuvora.file;
        for (const QString &voce : voci) {
            const QFileInfo posto(m_a + u'/' + voce);
            if (posto.exists() || posto.isSymLink())
                throw Guasto{
                    u"Nella cartella %1 c'è già %2: nulla è stato modificato. Indicare una cartella vuota."_s.arg(
                        nativo(m_a), voce)};
        }
        for (const QString &voce : voci) {
            sposta(m_da + u'/' + voce, m_a + u'/' + voce);
            m_spostate += voce;
        }
    }
    void tieni() { m_tenuta = true; }

private:
    static void rimuovi(const QString &percorso) {
        if (QFileInfo(percorso).isDir())
            QDir(percorso).removeRecursively();
        else
            QFile::remove(percorso);
    }
    QString m_da;
    QString m_a;
    QStringList m_spostate;
    bool m_tenuta = false;
};

void copiaProgramma(const QString &origine, const QString &destinazione) {
    const QDir da(origine);
    if (!QFileInfo(da.filePath(u"zuvora"_s)).isFile())
        throw Guasto{
            u"Nella cartella %1 manca il programma zuvora, che va copiato nell'installazione."_s.arg(nativo(origine))};
    QStringList voci = da.entryList({u"zuvora"_s, u"zuvora-installa"_s, u"libzuvora-*.so"_s}, QDir::Files);
    if (QFileInfo(da.filePath(u"plugins"_s)).isDir())
        voci += u"plugins"_s;
    for (const QString &voce : voci)
        copia(da.filePath(voce), destinazione + u'/' + voce);
}

void copiaFile(const QString &origine, const QString &destinazione) {
    for (const QLatin1StringView cartella : cartelleDiFile()) {
        const QString da = origine + u'/' + cartella;
        if (!QFileInfo(da).isDir())
            throw Guasto{u"Nella cartella %1 manca la cartella %2, che va copiata nell'installazione."_s.arg(
                nativo(origine), cartella)};
        copia(da, destinazione + u'/' + cartella);
    }
    for (const QLatin1StringView file : fileDiTesto())
        scriviFile(destinazione + u'/' + file, testoDi(file));
}

void prepara(const QString &destinazione, const QString &cartella, const OpzioniCrea &opzioni) {
    const QString origine = opzioni.origine.isEmpty() ? QCoreApplication::applicationDirPath() : opzioni.origine;
    if (opzioni.conProgramma)
        copiaProgramma(origine, destinazione);
    copiaFile(origine, destinazione);
    if (opzioni.esempio)
        scriviEsempio(destinazione, cartella);
    for (const Archivio *archivio : {&archivioTotem, &archivioZuvora}) {
        const QString file = destinazione + u'/' + archivio->file;
        creaCartella(QFileInfo(file).path());
        creaArchivio(*archivio, file, cartella, opzioni.esempio);
    }
}

void crea(const QString &cartella, const OpzioniCrea &opzioni) {
    rifiutaCartellaOccupata(cartella);
    CartellaNuova nuova(cartella);
    // Prepared inside the target, so that the moves at the end stay on one file system.
    QTemporaryDir preparazione(cartella + u"/.zuvora-installa-XXXXXX"_s);
    if (!preparazione.isValid())
        throw Guasto{u"Impossibile scrivere nella cartella %1: verificare i permessi e lo spazio su disco."_s.arg(
            nativo(cartella))};
    prepara(preparazione.path(), cartella, opzioni);
    Pubblicazione pubblicazione(preparazione.path(), cartella);
    pubblicazione.tutto();
    pubblicazione.tieni();
    nuova.tieni();
}
} // namespace

Esito creaInstallazione(const OpzioniCrea &opzioni) {
    if (opzioni.cartella.isEmpty())
        return {false, u"Indicare la cartella dell'installazione."_s};
    const QString cartella = QDir::cleanPath(QFileInfo(opzioni.cartella).absoluteFilePath());
    try {
        crea(cartella, opzioni);
    } catch (const Guasto &guasto) {
        return {false, guasto.frase};
    }
    return {true, u"Installazione creata nella cartella %1."_s.arg(nativo(cartella))};
}

} // namespace zuvora::installa
