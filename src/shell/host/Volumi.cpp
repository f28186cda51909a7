#include "shell/host/Volumi.h"

#include "shell/logic/Domanda.h"

#include <QDir>
#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

constexpr std::array<QStringView, 10> tipiDiRete = {u"nfs",    u"nfs4",       u"cifs", u"smb3", u"smbfs",
                                                    u"vboxsf", u"fuse.sshfs", u"zfs",  u"9p",   u"fuse.davfs2"};
constexpr std::array<QStringView, 3> cartelleDiSistema = {u"/boot", u"/snap", u"/var/lib/snapd"};

bool sottoA(const QString &percorso, QStringView cartella) {
    return percorso == cartella || (percorso.startsWith(cartella) && percorso.at(cartella.size()) == u'/');
}

QString conBarraFinale(const QString &cartella) {
    return cartella.endsWith(u'/') ? cartella : cartella + u'/';
}

bool diDisco(const Montaggio &m) {
    return m.origine.startsWith(u"/dev/");
}

// The share's own name where the desktop has mounted it: the path there is long and says nothing.
QString nomeVolume(const Montaggio &m) {
    return m.cartella.contains(u"/gvfs/"_s) ? m.origine : QDir::toNativeSeparators(m.cartella);
}

void ordina(QStringList &nomi) {
    std::sort(nomi.begin(), nomi.end(), [](const QString &a, const QString &b) {
        const int confronto = QString::localeAwareCompare(a.toLower(), b.toLower());
        return confronto != 0 ? confronto < 0 : a < b;
    });
}

Contenuto contenutoDi(const SistemaFile &sistema, const QString &cartella) {
    Contenuto contenuto;
    const QStringList nomi = sistema.nomi(cartella);
    for (const QString &nome : nomi) {
        if (nome.startsWith(u'.'))
            continue;
        const Specie specie = sistema.specie(conBarraFinale(cartella) + nome);
        if (specie == Specie::Cartella)
            contenuto.cartelle << nome;
        else if (specie == Specie::File)
            contenuto.file << nome;
    }
    ordina(contenuto.cartelle);
    ordina(contenuto.file);
    return contenuto;
}

} // namespace

bool volumeReale(const Montaggio &m) {
    const bool conLettera = m.cartella.size() >= 2 && m.cartella.at(1) == u':';
    if (m.cartella == u"/" || conLettera)
        return true;
    for (const QStringView cartella : cartelleDiSistema)
        if (sottoA(m.cartella, cartella))
            return false;
    if (diDisco(m))
        return m.tipo != u"squashfs";
    return std::any_of(tipiDiRete.begin(), tipiDiRete.end(), [&](QStringView tipo) { return m.tipo == tipo; });
}

QList<Volume> volumiMontati(const SistemaFile &sistema) {
    QList<Volume> volumi;
    const QList<Montaggio> montaggi = sistema.montaggi();
    for (const Montaggio &m : montaggi) {
        // A single file can be a mount point too. A share is not asked: it may never answer.
        const bool cartella = !diDisco(m) || sistema.specie(m.cartella) == Specie::Cartella;
        const QString radice = QDir::toNativeSeparators(m.cartella);
        const bool nuova = std::ranges::none_of(volumi, [&](const Volume &v) { return v.radice == radice; });
        if (cartella && nuova && volumeReale(m))
            volumi << Volume{radice, nomeVolume(m)};
    }
    if (volumi.isEmpty())
        volumi << Volume{QDir::toNativeSeparators(QDir::rootPath()), QDir::toNativeSeparators(QDir::rootPath())};
    std::sort(volumi.begin(), volumi.end(),
              [](const Volume &a, const Volume &b) { return a.radice.compare(b.radice, Qt::CaseInsensitive) < 0; });
    return volumi;
}

QString volumeDi(const QString &percorso, const QList<Volume> &volumi) {
    const QString cercato = conBarraFinale(QDir::fromNativeSeparators(percorso));
    QString trovato;
    for (const Volume &v : volumi)
        if (cercato.startsWith(conBarraFinale(QDir::fromNativeSeparators(v.radice))) &&
            v.radice.size() >= trovato.size())
            trovato = v.radice;
    return trovato;
}

std::optional<Contenuto> leggiCartella(const std::shared_ptr<const SistemaFile> &sistema, const QString &cartella) {
    const auto domanda = [sistema, cartella]() -> std::optional<Contenuto> {
        if (sistema->specie(cartella) != Specie::Cartella)
            return std::nullopt;
        return contenutoDi(*sistema, cartella);
    };
    return chiediEAspetta<std::optional<Contenuto>>(domanda).value_or(std::nullopt);
}

} // namespace zuvora
