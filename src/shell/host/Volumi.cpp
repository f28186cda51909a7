#include "shell/host/Volumi.h"

#include <QDir>
#include <QFileInfo>
#include <QStorageInfo>
#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

constexpr std::array<const char *, 10> TipiDiRete = {"nfs",    "nfs4",       "cifs", "smb3", "smbfs",
                                                     "vboxsf", "fuse.sshfs", "zfs",  "9p",   "fuse.davfs2"};
constexpr std::array<QStringView, 3> CartelleDiSistema = {u"/boot", u"/snap", u"/var/lib/snapd"};

bool sottoA(const QString &percorso, QStringView cartella) {
    return percorso == cartella || (percorso.startsWith(cartella) && percorso.at(cartella.size()) == u'/');
}

QString conBarraFinale(const QString &cartella) {
    return cartella.endsWith(u'/') ? cartella : cartella + u'/';
}

} // namespace

bool volumeReale(const Volume &volume) {
    const bool conLettera = volume.radice.size() >= 2 && volume.radice.at(1) == u':';
    if (volume.radice == u"/" || conLettera)
        return true;
    for (const QStringView cartella : CartelleDiSistema)
        if (sottoA(volume.radice, cartella))
            return false;
    if (volume.dispositivo.startsWith("/dev/"))
        return volume.tipo != "squashfs";
    return std::any_of(TipiDiRete.begin(), TipiDiRete.end(), [&](const char *tipo) { return volume.tipo == tipo; });
}

QStringList volumiMontati() {
    QStringList radici;
    const QList<QStorageInfo> montati = QStorageInfo::mountedVolumes();
    for (const QStorageInfo &v : montati)
        // A single file can be a mount point too.
        if (volumeReale({v.rootPath(), v.device(), v.fileSystemType()}) && QFileInfo(v.rootPath()).isDir())
            radici << QDir::toNativeSeparators(v.rootPath());
    if (radici.isEmpty())
        radici << QDir::toNativeSeparators(QDir::rootPath());
    radici.removeDuplicates();
    radici.sort(Qt::CaseInsensitive);
    return radici;
}

QString volumeDi(const QString &percorso, const QStringList &volumi) {
    const QString cercato = conBarraFinale(QDir::fromNativeSeparators(percorso));
    QString trovato;
    for (const QString &volume : volumi)
        if (cercato.startsWith(conBarraFinale(QDir::fromNativeSeparators(volume))) && volume.size() >= trovato.size())
            trovato = volume;
    return trovato;
}

} // namespace zuvora
