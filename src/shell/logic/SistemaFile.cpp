#include "shell/logic/SistemaFile.h"

#include "shell/logic/FileAtomico.h"

#include <QDir>
#include <QSysInfo>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

// Blanks and the like stand as \040 in the table.
QString senzaFughe(const QByteArray &campo) {
    QByteArray testo;
    for (qsizetype i = 0; i < campo.size(); ++i) {
        bool ottale = false;
        const int numero = campo[i] == '\\' ? campo.mid(i + 1, 3).toInt(&ottale, 8) : 0;
        testo += ottale ? static_cast<char>(numero) : campo[i];
        i += ottale ? 3 : 0;
    }
    return QString::fromUtf8(testo);
}

QByteArray contenutoDi(const QString &percorso) {
    return leggiFile(percorso).contenuto;
}

} // namespace

bool SistemaLocale::conUnita() const {
    return QDir::separator() == u'\\';
}

QString SistemaLocale::nomeMacchina() const {
    return QSysInfo::machineHostName();
}

QList<Montaggio> SistemaLocale::montaggi() const {
    QList<Montaggio> elenco = montaggiDa(contenutoDi(u"/proc/self/mounts"_s));
    QList<Montaggio> aperte;
    for (const Montaggio &m : std::as_const(elenco))
        if (m.tipo == u"fuse.gvfsd-fuse") {
            const QStringList voci = nomi(m.cartella);
            for (const QString &voce : voci)
                aperte += montaggioGvfs(m.cartella, voce);
        }
    elenco += aperte;
    elenco.removeIf([](const Montaggio &m) { return m.cartella.isEmpty(); });
    return elenco;
}

QList<Condivisione> SistemaLocale::condivisioni() const {
    QList<Condivisione> elenco = condivisioniDa(contenutoDi(u"/etc/samba/smb.conf"_s));
    const QString diUtenti = u"/var/lib/samba/usershares"_s;
    const QStringList voci = nomi(diUtenti);
    for (const QString &voce : voci)
        elenco += condivisioniDa(contenutoDi(diUtenti + u'/' + voce));
    return elenco;
}

QList<Montaggio> montaggiDa(QByteArrayView mounts) {
    QList<Montaggio> elenco;
    for (const QByteArray &riga : mounts.toByteArray().split('\n')) {
        const QList<QByteArray> campi = riga.split(' ');
        if (campi.size() >= 3)
            elenco += Montaggio{senzaFughe(campi[0]), senzaFughe(campi[1]), senzaFughe(campi[2])};
    }
    return elenco;
}

Montaggio montaggioGvfs(const QString &base, const QString &nome) {
    constexpr QStringView segno = u"smb-share:";
    if (!nome.startsWith(segno))
        return {};
    QString server;
    QString condivisione;
    for (const QStringView parte : QStringView(nome).sliced(segno.size()).split(u',')) {
        if (parte.startsWith(u"server="))
            server = parte.sliced(7).toString();
        if (parte.startsWith(u"share="))
            condivisione = parte.sliced(6).toString();
    }
    return {u"//%1/%2"_s.arg(server, condivisione), base + u'/' + nome, u"cifs"_s};
}

QList<Condivisione> condivisioniDa(QByteArrayView configurazione) {
    constexpr std::array senzaCartella{u"global", u"homes", u"printers", u"print$"};
    QList<Condivisione> elenco;
    Condivisione attuale;
    const auto chiudi = [&] {
        const bool vera = std::ranges::none_of(senzaCartella, [&](QStringView n) { return attuale.nome == n; });
        if (vera && !attuale.nome.isEmpty() && attuale.cartella.startsWith(u'/'))
            elenco += attuale;
        attuale = {};
    };
    for (const QByteArray &grezza : configurazione.toByteArray().split('\n')) {
        const QString riga = QString::fromUtf8(grezza).trimmed();
        const qsizetype uguale = riga.indexOf(u'=');
        if (riga.startsWith(u'[') && riga.endsWith(u']')) {
            chiudi();
            attuale.nome = riga.sliced(1, riga.size() - 2).trimmed();
        } else if (uguale > 0 && !riga.startsWith(u'#') && !riga.startsWith(u';')) {
            const QString chiave = riga.left(uguale).trimmed().toLower();
            const QString valore = riga.sliced(uguale + 1).trimmed();
            if (chiave == u"path" || chiave == u"directory")
                attuale.cartella = valore;
            else if (chiave == u"sharename")
                attuale.nome = valore;
        }
    }
    chiudi();
    return elenco;
}

} // namespace zuvora
