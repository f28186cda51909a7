#include "installer/copia/Scambio.h"

#include "installer/File.h"
#include "installer/Guasto.h"

#include "shell/logic/FileAtomico.h"
#include "shell/store/Database.h"
#include "shell/store/EngineError.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <algorithm>
#include <array>
#include <filesystem>
#include <system_error>
#include <utility>

namespace zuvora::installa {
using namespace Qt::Literals::StringLiterals;

namespace {
constexpr auto sede = "/.zuvora-installa-scambio"_L1;
constexpr auto fileNuovi = "/nuovi"_L1;
// The record, under the name of how far the exchange is: only getting ready, under way, done but for the clearing.
constexpr auto inPreparazione = "/preparo"_L1;
constexpr auto inCorso = "/scambio"_L1;
constexpr auto finito = "/fatto"_L1;
// Ends of names beside a file's place: the new one, the old one, and an old database while it is written.
constexpr auto nuovo = ".zuvora-installa-n"_L1;
constexpr auto vecchio = ".zuvora-installa-v"_L1;
constexpr auto parziale = ".zuvora-installa-p"_L1;

// What the record says.
struct Piano {
    QString copia;        // of the installation as it was
    QStringList cartelle; // that are made, outermost first
    QStringList file;
    QStringList archivi; // databases that are there already
};

constexpr auto membri = [] {
    return std::array{std::pair{u'c', &Piano::cartelle}, std::pair{u'f', &Piano::file},
                      std::pair{u'a', &Piano::archivi}};
}();

void sincronizzaNome(const QString &percorso) {
    sincronizzaCartelle(QFileInfo(percorso).path(), {});
}

void scriviPiano(const Piano &piano, const QString &file) {
    QString testo = piano.copia + u'\n';
    for (const auto &[segno, membro] : membri)
        for (const QString &nome : piano.*membro)
            testo += u"%1 %2\n"_s.arg(QChar(segno)).arg(nome);
    scriviNuovo(file + parziale, testo.toUtf8());
    sincronizzaTutto(QFileInfo(file).path());
    sposta(file + parziale, file);
    sincronizzaNome(file);
}

Piano leggiPiano(const QString &nome) {
    QFile file(nome);
    if (!file.open(QIODevice::ReadOnly))
        throw Guasto{u"Impossibile leggere %1: verificare i permessi."_s.arg(nativo(nome))};
    QStringList righe = QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts);
    Piano piano;
    if (!righe.isEmpty())
        piano.copia = righe.takeFirst();
    for (const QString &riga : std::as_const(righe))
        for (const auto &[segno, membro] : membri)
            if (riga.front() == segno)
                (piano.*membro) += riga.mid(2);
    return piano;
}

Piano pianoDi(const QString &cartella, const QStringList &nomi, const QString &copia) {
    Piano piano{copia, {}, {}, {}};
    for (const QString &nome : nomi) {
        const QString posto = cartella + u'/' + nome;
        if (QFileInfo(posto).isDir())
            throw Guasto{u"%1 è una cartella: nulla è stato modificato."_s.arg(nativo(posto))};
        for (qsizetype fine = nome.indexOf(u'/'); fine >= 0; fine = nome.indexOf(u'/', fine + 1))
            if (const QString madre = nome.left(fine);
                !presente(cartella + u'/' + madre) && !piano.cartelle.contains(madre))
                piano.cartelle += madre;
        (eArchivio(nome) && presente(posto) ? piano.archivi : piano.file) += nome;
    }
    // The settings database, the first of a copy, comes last.
    std::ranges::reverse(piano.archivi);
    return piano;
}

// Beside its place, on the disk; a folder of the installation may lie on another file system than the installation.
void mettiAccanto(const QString &da, const QString &a) {
    std::error_code errore;
    std::filesystem::rename(QFileInfo(da).filesystemFilePath(), QFileInfo(a).filesystemFilePath(), errore);
    if (errore) {
        copia(da, a);
        sincronizzaTutto(a);
    }
}

void copiaArchivio(const QString &da, const QString &a) {
    Database origine = Database::apriInLettura(da);
    Database::OpenDatabase(a).copiaDa(origine);
}

// The database as it is now, whole under its name or not there.
void tieniVecchio(const QString &posto) {
    rimuovi(posto + parziale);
    {
        Database origine = Database::apriInLettura(posto);
        Database::crea(posto + parziale).copiaDa(origine);
    }
    sposta(posto + parziale, posto + vecchio);
    sincronizzaNome(posto);
}

// Takes back one file, whether it has its new content, has lost the old one only, or was not reached. The new file goes
// back to where it waited, and with it the sign that this one is still to do.
void rimettiFile(const QString &posto, const std::function<void()> &passo) {
    passo();
    if (!presente(posto + nuovo) && presente(posto))
        sposta(posto, posto + nuovo);
    passo();
    if (presente(posto + vecchio))
        sposta(posto + vecchio, posto);
}

void rimettiArchivio(const QString &posto, const std::function<void()> &passo) {
    passo();
    if (!presente(posto + vecchio))
        return;
    copiaArchivio(posto + vecchio, posto);
    passo();
    rimuovi(posto + vecchio);
}

template <typename Lavoro> void perCartella(const QString &cartella, const Piano &piano, const Lavoro &lavoro) {
    QSet<QString> viste;
    for (const QStringList *nomi : {&piano.file, &piano.archivi})
        for (const QString &nome : *nomi)
            if (const QString madre = QFileInfo(cartella + u'/' + nome).path(); !viste.contains(madre)) {
                viste.insert(madre);
                lavoro(madre);
            }
}

void sincronizzaPosti(const QString &cartella, const Piano &piano) {
    perCartella(cartella, piano, [](const QString &madre) { sincronizzaCartelle(madre, {}); });
}

void pulisci(const QString &cartella, const Piano &piano) {
    for (const QStringList *nomi : {&piano.file, &piano.archivi})
        for (const QString &nome : *nomi)
            for (const auto coda : {nuovo, vecchio, parziale})
                rimuovi(cartella + u'/' + nome + coda);
}

// True when an exchange was under way and is undone now.
bool ripara(const QString &cartella, const std::function<void()> &passo) {
    const QString base = cartella + sede;
    bool annullato = false;
    if (QFileInfo::exists(base + inCorso)) {
        const Piano piano = leggiPiano(base + inCorso);
        for (const QString &nome : piano.archivi)
            rimettiArchivio(cartella + u'/' + nome, passo);
        for (const QString &nome : piano.file)
            rimettiFile(cartella + u'/' + nome, passo);
        sincronizzaPosti(cartella, piano);
        sposta(base + inCorso, base + inPreparazione);
        annullato = true;
    }
    if (QFileInfo::exists(base + finito))
        pulisci(cartella, leggiPiano(base + finito));
    if (QFileInfo::exists(base + inPreparazione)) {
        Piano piano = leggiPiano(base + inPreparazione);
        pulisci(cartella, piano);
        std::ranges::reverse(piano.cartelle);
        for (const QString &fatta : std::as_const(piano.cartelle))
            QDir().rmdir(cartella + u'/' + fatta); // only an empty one: what somebody put there stays
    }
    rimuovi(base);
    return annullato;
}
} // namespace

Scambio::Scambio(const QString &cartella, std::function<void()> passo)
    : m_cartella(cartella), m_passo(std::move(passo)), m_guardia(cartella + u"/.zuvora-installa.lock"_s) {
    m_guardia.setStaleLockTime(0);
    if (!m_guardia.tryLock() && m_guardia.error() == QLockFile::LockFailedError)
        throw Guasto{
            u"Nella cartella %1 è già in corso un'installazione: attendere che finisca."_s.arg(nativo(cartella))};
    m_annullato = ripara(cartella, m_passo);
    creaCartella(preparazione());
}

Scambio::~Scambio() {
    try {
        ripara(m_cartella, [] {});
    } catch (const Guasto &) {
        // scambioSospeso tells.
    } catch (const EngineError &) {
        // The same.
    }
}

QString Scambio::preparazione() const {
    return m_cartella + sede + fileNuovi;
}

void Scambio::esegui(const QStringList &nomi, const QString &copia) {
    const QString base = m_cartella + sede;
    const auto posto = [this](const QString &nome) { return m_cartella + u'/' + nome; };
    const Piano piano = pianoDi(m_cartella, nomi, copia);
    m_passo();
    scriviPiano(piano, base + inPreparazione);
    for (const QString &cartella : piano.cartelle)
        creaCartella(posto(cartella));
    for (const QString &nome : nomi) {
        m_passo();
        mettiAccanto(preparazione() + u'/' + nome, posto(nome) + nuovo);
    }
    sincronizzaPosti(m_cartella, piano);
    sposta(base + inPreparazione, base + inCorso);
    sincronizzaNome(base + inCorso);
    for (const QString &nome : piano.file) {
        m_passo();
        if (presente(posto(nome)))
            sposta(posto(nome), posto(nome) + vecchio);
        m_passo();
        sposta(posto(nome) + nuovo, posto(nome));
    }
    for (const QString &nome : piano.archivi) {
        m_passo();
        tieniVecchio(posto(nome));
        m_passo();
        copiaArchivio(posto(nome) + nuovo, posto(nome));
    }
    sincronizzaPosti(m_cartella, piano);
    m_passo();
    sposta(base + inCorso, base + finito);
    sincronizzaNome(base + finito);
}

QString scambioSospeso(const QString &cartella) {
    const QString registro = cartella + sede + inCorso;
    if (!QFileInfo::exists(registro))
        return {};
    return u"In %1 un ripristino è stato interrotto a metà: i file sono in parte di prima e in parte della copia. "
           "Ripetere zuvora-installa ripristina --sopra, che prima rimette i file di prima; l'installazione di prima è "
           "anche salvata in %2."_s.arg(nativo(cartella), nativo(leggiPiano(registro).copia));
}

} // namespace zuvora::installa
