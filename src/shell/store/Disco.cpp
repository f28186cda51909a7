#include "shell/store/Disco.h"

#include <QDir>
#include <QFileInfo>
#include <algorithm>

namespace zuvora {
namespace {

QString piegato(const QString &nome) {
    return nome.normalized(QString::NormalizationForm_C).toCaseFolded();
}

} // namespace

Specie DiscoLocale::specie(const QString &percorso) const {
    const QFileInfo info(percorso);
    if (percorso.isEmpty() || !info.exists())
        return Specie::Manca;
    return info.isDir() ? Specie::Cartella : info.isFile() ? Specie::File : Specie::Altro;
}

QStringList DiscoLocale::nomi(const QString &cartella) const {
    return QDir(cartella).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden | QDir::System, QDir::Name);
}

QString trovaSenzaCaso(const Disco &disco, const QString &percorso) {
    if (percorso.isEmpty() || disco.specie(percorso) != Specie::Manca)
        return percorso;
    const QFileInfo info(QDir::fromNativeSeparators(percorso));
    const QString nome = info.fileName();
    if (nome.isEmpty() || info.path() == percorso)
        return {};
    const QString cartella = trovaSenzaCaso(disco, info.path());
    if (cartella.isEmpty())
        return {};
    const QStringList nomi = disco.nomi(cartella);
    const auto trovato =
        std::ranges::find_if(nomi, [cercato = piegato(nome)](const QString &n) { return piegato(n) == cercato; });
    return trovato == nomi.end() ? QString() : QDir(cartella).filePath(*trovato);
}

} // namespace zuvora
