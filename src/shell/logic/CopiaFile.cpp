#include "shell/logic/CopiaFile.h"

#include "shell/logic/FileAtomico.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <cerrno>
#include <filesystem>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

constexpr qint64 blocco = 1 << 20; // bytes

bool stessoContenuto(const QString &a, const QString &b, const Avanzamento &avanzamento) {
    QFile primo(a);
    QFile secondo(b);
    if (primo.size() != secondo.size() || !primo.open(QIODevice::ReadOnly) || !secondo.open(QIODevice::ReadOnly))
        return false;
    while (!primo.atEnd() && !avanzamento.annullato()) {
        const QByteArray letto = primo.read(blocco);
        if (letto.isEmpty() || letto != secondo.read(blocco))
            return false;
    }
    return primo.error() == QFileDevice::NoError;
}

std::filesystem::path diSistema(const QString &percorso) {
    return QFile::encodeName(percorso).toStdString();
}

QString motivoUltimo() {
    return motivoSistema(errno != 0 ? errno : EIO);
}

} // namespace

QString FileScelto(const QString &percorso) {
    return QFileInfo(QDir::fromNativeSeparators(percorso)).fileName();
}

Incontro incontroCopia(const QString &origine, const QString &destinazione, const Avanzamento &avanzamento) {
    const QFileInfo meta(destinazione);
    if (!meta.exists())
        return Incontro::Nessuno;
    if (!meta.isFile())
        return Incontro::Impedito;
    if (meta == QFileInfo(origine) || stessoContenuto(origine, destinazione, avanzamento))
        return Incontro::LoStesso;
    return Incontro::Diverso;
}

CopiaPreparata::CopiaPreparata(const QString &origine, const QString &temporaneo, Avanzamento &avanzamento)
    : m_temporaneo(temporaneo), m_motivo(scrivi(origine, avanzamento)) {
    if (!m_motivo.isEmpty())
        togli();
}

CopiaPreparata::~CopiaPreparata() {
    togli();
}

void CopiaPreparata::togli() const {
    QFile::remove(m_temporaneo);
    QDir().rmdir(QFileInfo(m_temporaneo).path());
}

QString CopiaPreparata::scrivi(const QString &origine, Avanzamento &avanzamento) const {
    QFile da(origine);
    errno = 0;
    if (!QFileInfo(origine).isFile() || !da.open(QIODevice::ReadOnly))
        return u"Il file scelto non si può leggere. "_s + motivoSistema(errno != 0 ? errno : ENOENT);
    errno = 0;
    if (!QDir().mkpath(QFileInfo(m_temporaneo).path()))
        return u"La cartella di destinazione non si può creare. "_s + motivoUltimo();
    QFile in(m_temporaneo);
    if (!in.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered))
        return motivoUltimo();
    while (!da.atEnd()) {
        errno = 0;
        const QByteArray letto = da.read(blocco);
        if (letto.isEmpty())
            return u"Il file scelto non si può leggere fino in fondo. "_s + motivoUltimo();
        if (in.write(letto) != letto.size())
            return motivoUltimo();
        avanzamento.setParte(in.pos(), da.size());
        if (avanzamento.annullato())
            return u"La copia è stata annullata."_s;
    }
    const QString cartella = QFileInfo(m_temporaneo).path();
    const bool suDisco =
        sincronizza(in.handle()) && sincronizzaCartella(cartella) && sincronizzaCartella(QFileInfo(cartella).path());
    return suDisco ? QString() : motivoUltimo();
}

QString CopiaPreparata::colloca(const QString &destinazione) {
    return m_motivo.isEmpty() ? collocaFile(m_temporaneo, destinazione) : m_motivo;
}

QString collocaFile(const QString &temporaneo, const QString &destinazione) {
    std::error_code errore;
    std::filesystem::rename(diSistema(temporaneo), diSistema(destinazione), errore);
    if (errore)
        return motivoSistema(errore.value());
    return sincronizzaCartella(QFileInfo(destinazione).path()) ? QString() : motivoUltimo();
}

} // namespace zuvora
