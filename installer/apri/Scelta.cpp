#include "installer/apri/Scelta.h"

#include "shell/logic/FileAtomico.h"
#include "shell/logic/Percorsi.h"
#include "shell/store/NomiFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

using namespace Qt::Literals::StringLiterals;

namespace zuvora::apri {
namespace {

// Two files of one length are compared piece by piece: the program is several megabytes.
bool uguali(const QString &a, const QString &b) {
    QFile prima(a);
    QFile seconda(b);
    if (!prima.open(QIODevice::ReadOnly) || !seconda.open(QIODevice::ReadOnly) || prima.size() != seconda.size())
        return false;
    constexpr qint64 pezzo = 1 << 20;
    while (!prima.atEnd())
        if (prima.read(pezzo) != seconda.read(pezzo))
            return false;
    return true;
}

} // namespace

Scelta::Scelta(QString file)
    : m_file(file.isEmpty()
                 ? QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + u"/zuvora/installazione"_s
                 : std::move(file)) {}

QString Scelta::cartella() const {
    return QString::fromUtf8(leggiFile(m_file, 64 * 1024).contenuto).trimmed();
}

QString Scelta::ricorda(const QString &cartella) const {
    if (!QDir().mkpath(QFileInfo(m_file).path()))
        return u"La cartella delle impostazioni non può essere creata."_s;
    return scriviFile(m_file, (cartella + u'\n').toUtf8());
}

bool eInstallazione(const QString &cartella) {
    return !cartella.isEmpty() && QFileInfo(percorsoIn(cartella, nomi::archivio)).isFile() &&
           QFileInfo(cartella + u"/zuvora"_s).isExecutable();
}

bool programmaDiverso(const QString &cartella, const QString &origine) {
    return QFileInfo::exists(origine + u"/zuvora"_s) && !uguali(cartella + u"/zuvora"_s, origine + u"/zuvora"_s);
}

} // namespace zuvora::apri
