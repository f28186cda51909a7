#include "installer/File.h"

#include "installer/Guasto.h"
#include "installer/Interruzione.h"

#include "shell/logic/FileAtomico.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <system_error>
#include <unistd.h>

namespace zuvora::installa {
using namespace Qt::Literals::StringLiterals;

namespace {
std::filesystem::path percorso(const QString &file) {
    return QFileInfo(file).filesystemFilePath();
}

QString motivo(int errore) {
    QString frase = motivoSistema(errore);
    frase.front() = frase.front().toLower();
    return frase;
}

[[noreturn]] void fallisci(int errore, const QString &azione, const QString &file) {
    throw Guasto{u"Impossibile %1 %2: %3"_s.arg(azione, posto(file), motivo(errore))};
}

void verifica(const std::error_code &errore, const QString &azione, const QString &file) {
    if (errore)
        fallisci(errore.value(), azione, file);
}

// An open file, closed at the end.
class Descrittore {
public:
    Descrittore(const QString &file, int modo, mode_t permessi = 0)
        : m_numero(open(QFile::encodeName(file).constData(), modo | O_CLOEXEC, permessi)) {}
    ~Descrittore() {
        if (m_numero >= 0)
            close(m_numero);
    }
    Descrittore(const Descrittore &) = delete;
    Descrittore &operator=(const Descrittore &) = delete;
    int numero() const { return m_numero; }

private:
    int m_numero;
};

void scrivi(const Descrittore &file, const char *dati, qsizetype quanti, const QString &nome) {
    while (quanti > 0) {
        const ssize_t scritti = write(file.numero(), dati, static_cast<std::size_t>(quanti));
        if (scritti < 0 && errno != EINTR)
            fallisci(errno, u"scrivere"_s, nome);
        if (scritti > 0) {
            dati += scritti;
            quanti -= scritti;
        }
    }
}

void copiaFile(const QString &da, const QString &a) {
    constexpr qsizetype blocco = 1 << 20;
    const Descrittore origine(da, O_RDONLY);
    if (origine.numero() < 0)
        fallisci(errno, u"leggere"_s, da);
    const auto permessi = static_cast<mode_t>(std::filesystem::status(percorso(da)).permissions()) & 0777U;
    const Descrittore copia(a, O_WRONLY | O_CREAT | O_EXCL, permessi);
    if (copia.numero() < 0)
        fallisci(errno, u"creare"_s, a);
    QByteArray dati(blocco, Qt::Uninitialized);
    for (;;) {
        fermaSeInterrotto();
        const ssize_t letti = read(origine.numero(), dati.data(), static_cast<std::size_t>(blocco));
        if (letti < 0 && errno == EINTR)
            continue;
        if (letti < 0)
            fallisci(errno, u"leggere"_s, da);
        if (letti == 0)
            return;
        scrivi(copia, dati.constData(), letti, a);
    }
}

void sincronizzaVoce(const QString &voce) {
    const Descrittore file(voce, O_RDONLY);
    if (file.numero() < 0 || !sincronizza(file.numero()))
        fallisci(errno, u"scrivere"_s, voce);
}
} // namespace

bool eArchivio(const QString &nome) {
    return nome.endsWith(".mdb"_L1, Qt::CaseInsensitive);
}

bool presente(const QString &percorso) {
    const QFileInfo info(percorso);
    return info.exists() || info.isSymLink();
}

QString nativo(const QString &percorso) {
    return QDir::toNativeSeparators(percorso);
}

QString posto(const QString &file) {
    static const QRegularExpression preparazione(u"/\\.zuvora-installa-scambio/nuovi|/?\\.zuvora-installa-[^/]*"_s);
    return nativo(QString(file).remove(preparazione));
}

void creaCartella(const QString &cartella) {
    std::error_code errore;
    std::filesystem::create_directories(percorso(cartella), errore);
    verifica(errore, u"creare la cartella"_s, cartella);
}

void scriviNuovo(const QString &nome, const QByteArray &contenuto) {
    const Descrittore file(nome, O_WRONLY | O_CREAT | O_EXCL, 0666);
    if (file.numero() < 0)
        fallisci(errno, u"creare"_s, nome);
    scrivi(file, contenuto.constData(), contenuto.size(), nome);
}

void copia(const QString &da, const QString &a) {
    fermaSeInterrotto();
    const QFileInfo info(da);
    if (!info.isDir()) {
        copiaFile(da, a);
        return;
    }
    creaCartella(a);
    constexpr auto tutte = QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden;
    for (const QString &voce : QDir(da).entryList(tutte, QDir::Name))
        copia(da + u'/' + voce, a + u'/' + voce);
}

QString motivoDelDisco(const QString &nome) {
    const Descrittore file(nome, O_WRONLY | O_APPEND);
    const QByteArray dati(1 << 20, '\0');
    for (int volte = 0; volte < 4; ++volte)
        if (write(file.numero(), dati.constData(), static_cast<std::size_t>(dati.size())) < 0)
            return motivo(errno);
    return {};
}

void sposta(const QString &da, const QString &a) {
    std::error_code errore;
    std::filesystem::rename(percorso(da), percorso(a), errore);
    verifica(errore, u"creare"_s, a);
}

void rimuovi(const QString &nome) {
    std::error_code errore;
    std::filesystem::remove_all(percorso(nome), errore);
}

void sincronizzaTutto(const QString &cartella) {
    QDirIterator voce(cartella, QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden, QDirIterator::Subdirectories);
    while (voce.hasNext()) {
        fermaSeInterrotto();
        sincronizzaVoce(voce.next());
    }
    sincronizzaVoce(cartella);
}

void sincronizzaCartelle(const QString &cartella, const QStringList &aggiunte) {
    sincronizzaVoce(cartella);
    for (const QString &aggiunta : aggiunte)
        sincronizzaCartella(QFileInfo(aggiunta).path()); // one that may not be read is made all the same
}

} // namespace zuvora::installa
