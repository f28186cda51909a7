#include "installer/copia/Archivio.h"

#include "installer/File.h"
#include "installer/Guasto.h"
#include "installer/Interruzione.h"

#include "shell/logic/FileAtomico.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <archive.h>
#include <archive_entry.h>
#include <fcntl.h>
#include <memory>
#include <unistd.h>

namespace zuvora::installa {
using namespace Qt::Literals::StringLiterals;

namespace {
constexpr qint64 blocco = 1 << 18;
constexpr qint64 elencoMassimo = 64 << 20; // bytes; more is no list of ours

QByteArray impronta(const QCryptographicHash &somma) {
    return somma.result().toHex();
}

// An archive open for reading, closed at the end.
struct Chiusura {
    void operator()(archive *a) const { archive_read_free(a); }
};
using Lettura = std::unique_ptr<archive, Chiusura>;

Lettura apri(const QString &file) {
    if (!QFileInfo(file).isFile())
        throw Guasto{u"La copia %1 non si trova."_s.arg(QDir::toNativeSeparators(file))};
    Lettura lettura(archive_read_new());
    archive_read_support_filter_zstd(lettura.get());
    archive_read_support_format_tar(lettura.get());
    if (archive_read_open_filename(lettura.get(), QFile::encodeName(file).constData(), blocco) != ARCHIVE_OK)
        throw Guasto{
            u"Il file %1 non è una copia di un'installazione, o è danneggiato."_s.arg(QDir::toNativeSeparators(file))};
    return lettura;
}

// One file of the archive on its way to the disk, or to nowhere.
class Uscita {
public:
    Uscita(const QString &cartella, const QString &nome) {
        if (cartella.isEmpty())
            return;
        const QString percorso = cartella + u'/' + nome;
        creaCartella(QFileInfo(percorso).path());
        m_file.setFileName(percorso);
        if (!m_file.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered))
            fallisci();
    }
    void scrivi(QByteArrayView dati) {
        if (m_file.isOpen() && m_file.write(dati.data(), dati.size()) != dati.size())
            fallisci();
    }

private:
    [[noreturn]] void fallisci() const {
        throw Guasto{u"Impossibile scrivere %1: %2"_s.arg(posto(m_file.fileName()), motivoSistema(errno))};
    }
    QFile m_file;
};

VoceCopia estrai(archive *a, const QString &nome, const QString &cartella, QByteArray *testo) {
    VoceCopia voce{nome, 0, {}};
    QCryptographicHash somma(QCryptographicHash::Sha256);
    Uscita uscita(testo ? QString() : cartella, nome);
    QByteArray dati(blocco, Qt::Uninitialized);
    for (;;) {
        fermaSeInterrotto();
        const la_ssize_t letti = archive_read_data(a, dati.data(), static_cast<std::size_t>(dati.size()));
        if (letti < 0)
            throw Guasto{u"La copia è danneggiata: %1 non si può leggere."_s.arg(nome)};
        if (letti == 0)
            break;
        const QByteArrayView pezzo(dati.constData(), letti);
        somma.addData(pezzo);
        uscita.scrivi(pezzo);
        voce.byte += letti;
        if (testo && voce.byte <= elencoMassimo)
            testo->append(pezzo);
    }
    voce.impronta = impronta(somma);
    return voce;
}
} // namespace

ScrittoreCopia::ScrittoreCopia(const QString &file) : m_file(file), m_archivio(archive_write_new()) {
    archive_write_add_filter_zstd(m_archivio);
    archive_write_set_format_pax_restricted(m_archivio);
    if (archive_write_open_filename(m_archivio, QFile::encodeName(file).constData()) != ARCHIVE_OK)
        fallisci();
}

ScrittoreCopia::~ScrittoreCopia() {
    archive_write_free(m_archivio);
}

void ScrittoreCopia::fallisci() {
    throw Guasto{u"Impossibile scrivere la copia %1: %2"_s.arg(QDir::toNativeSeparators(m_file),
                                                               motivoSistema(archive_errno(m_archivio)))};
}

void ScrittoreCopia::testata(const QString &nome, qint64 byte) {
    const std::unique_ptr<archive_entry, decltype(&archive_entry_free)> voce(archive_entry_new(), archive_entry_free);
    archive_entry_set_pathname_utf8(voce.get(), nome.toUtf8().constData());
    archive_entry_set_filetype(voce.get(), AE_IFREG);
    archive_entry_set_perm(voce.get(), 0644);
    archive_entry_set_size(voce.get(), byte);
    if (archive_write_header(m_archivio, voce.get()) != ARCHIVE_OK)
        fallisci();
}

void ScrittoreCopia::dati(const char *inizio, qsizetype quanti) {
    if (archive_write_data(m_archivio, inizio, static_cast<std::size_t>(quanti)) != quanti)
        fallisci();
}

void ScrittoreCopia::aggiungi(const QString &nome, const QString &daFile) {
    QFile file(daFile);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        throw Guasto{u"Impossibile leggere %1: verificare i permessi."_s.arg(QDir::toNativeSeparators(daFile))};
    VoceCopia voce{nome, file.size(), {}};
    testata(nome, voce.byte);
    QCryptographicHash somma(QCryptographicHash::Sha256);
    QByteArray pezzo(blocco, Qt::Uninitialized);
    qint64 resto = voce.byte;
    while (resto > 0) {
        fermaSeInterrotto();
        const qint64 letti = file.read(pezzo.data(), std::min<qint64>(pezzo.size(), resto));
        if (letti <= 0)
            break;
        somma.addData(QByteArrayView(pezzo.constData(), letti));
        dati(pezzo.constData(), letti);
        resto -= letti;
    }
    if (resto != 0 || file.size() != voce.byte)
        throw Guasto{u"Il file %1 è cambiato durante la copia, o non si può leggere: riprovare."_s.arg(
            QDir::toNativeSeparators(daFile))};
    voce.impronta = impronta(somma);
    m_voci += voce;
}

void ScrittoreCopia::chiudi(Elenco elenco) {
    elenco.voci = m_voci;
    const QByteArray testo = scriviElenco(elenco);
    testata(nomeElenco, testo.size());
    dati(testo.constData(), testo.size());
    if (archive_write_close(m_archivio) != ARCHIVE_OK)
        fallisci();
    const int descrittore = open(QFile::encodeName(m_file).constData(), O_RDONLY | O_CLOEXEC);
    const bool sicuro = descrittore >= 0 && sincronizza(descrittore);
    if (descrittore >= 0)
        close(descrittore);
    if (!sicuro)
        throw Guasto{
            u"Impossibile scrivere la copia %1: %2"_s.arg(QDir::toNativeSeparators(m_file), motivoSistema(errno))};
}

Elenco leggiCopia(const QString &file, const QString &cartella) {
    const Lettura lettura = apri(file);
    QList<VoceCopia> lette;
    QByteArray elenco;
    archive_entry *voce = nullptr;
    int esito = ARCHIVE_OK;
    while ((esito = archive_read_next_header(lettura.get(), &voce)) == ARCHIVE_OK && elenco.isEmpty()) {
        const QString nome = QString::fromUtf8(archive_entry_pathname_utf8(voce));
        if (archive_entry_filetype(voce) != AE_IFREG || archive_entry_hardlink(voce) != nullptr || !nomeAmmesso(nome))
            throw Guasto{u"La copia contiene una voce non ammessa (%1): nulla è stato modificato."_s.arg(nome)};
        const bool fine = nome == nomeElenco;
        const VoceCopia letta = estrai(lettura.get(), nome, cartella, fine ? &elenco : nullptr);
        if (!fine)
            lette += letta;
    }
    if (esito != ARCHIVE_EOF || elenco.isEmpty())
        throw Guasto{
            u"Il file %1 non è una copia di un'installazione, o è danneggiato: nulla è stato modificato."_s.arg(
                QDir::toNativeSeparators(file))};
    Elenco letto = leggiElenco(elenco);
    if (letto.voci != lette)
        throw Guasto{u"La copia è danneggiata: i file non corrispondono all'elenco. Nulla è stato modificato."_s};
    return letto;
}

} // namespace zuvora::installa
