#include "shell/logic/CopiaFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

constexpr qint64 Blocco = 1 << 20; // bytes

QString destinazione(const QString &origine, const QString &cartella) {
    return QDir(QDir::fromNativeSeparators(cartella)).filePath(FileScelto(origine));
}

bool stessoContenuto(const QString &a, const QString &b) {
    QFile primo(a);
    QFile secondo(b);
    if (primo.size() != secondo.size() || !primo.open(QIODevice::ReadOnly) || !secondo.open(QIODevice::ReadOnly))
        return false;
    while (!primo.atEnd()) {
        const QByteArray letto = primo.read(Blocco);
        if (letto.isEmpty() || letto != secondo.read(Blocco))
            return false;
    }
    return primo.error() == QFileDevice::NoError;
}

// A full disk shows at the flush or not at all once the file is committed: nothing is committed on doubt.
bool riversa(QFile &da, QSaveFile &in) {
    while (!da.atEnd()) {
        const QByteArray letto = da.read(Blocco);
        if (letto.isEmpty() || in.write(letto) != letto.size())
            return false;
    }
    return da.error() == QFileDevice::NoError && in.flush() && in.error() == QFileDevice::NoError;
}

} // namespace

QString FileScelto(const QString &percorso) {
    return QFileInfo(QDir::fromNativeSeparators(percorso)).fileName();
}

Incontro incontroCopia(const QString &origine, const QString &cartella) {
    const QFileInfo meta(destinazione(origine, cartella));
    if (!meta.exists())
        return Incontro::Nessuno;
    if (!meta.isFile())
        return Incontro::Impedito;
    if (meta == QFileInfo(origine) || stessoContenuto(origine, meta.filePath()))
        return Incontro::LoStesso;
    return Incontro::Diverso;
}

QString copiaFile(const QString &origine, const QString &cartella) {
    QFile da(origine);
    if (!QFileInfo(origine).isFile() || !da.open(QIODevice::ReadOnly))
        return u"Il file scelto non si può leggere."_s;
    if (!QDir().mkpath(QDir::fromNativeSeparators(cartella)))
        return u"La cartella di destinazione non si può creare."_s;
    QSaveFile in(destinazione(origine, cartella));
    if (!in.open(QIODevice::WriteOnly))
        return u"La cartella di destinazione non è scrivibile."_s;
    if (!riversa(da, in)) {
        in.cancelWriting();
        return in.error() == QFileDevice::NoError ? u"Il file scelto non si può leggere fino in fondo."_s
                                                  : u"La copia si è interrotta: spazio su disco insufficiente ?"_s;
    }
    return in.commit() ? QString() : u"Il file non si può mettere nella cartella di destinazione."_s;
}

} // namespace zuvora
