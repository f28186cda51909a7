#include "installer/Contenuto.h"

#include "shell/store/NomiFile.h"

#include <QFile>
#include <array>

namespace zuvora::installa {
using namespace Qt::Literals::StringLiterals;

namespace {
// In the order of the schema. A layout table has 70 rows, one an element.
const std::array tabelleZuvora{
    Tabella{"Versione"_L1, "Versione"_L1, 1, 1},
    Tabella{"Configurazione"_L1, "Configurazione"_L1, 1, 1},
    Tabella{"ConfigurazioneTotem"_L1, "ConfigurazioneTotem"_L1, 1, 1},
    Tabella{"DescrizioneLayout"_L1, "DescrizioneLayout"_L1, 11, 11},
    Tabella{"LayoutBase"_L1, "LayoutBase"_L1, 70, 70},
    Tabella{"Layout1"_L1, "Layout1"_L1, 70, 70},
    Tabella{"Layout2"_L1, "Layout2"_L1, 70, 70},
    Tabella{"Layout3"_L1, "Layout3"_L1, 70, 70},
    Tabella{"Layout4"_L1, "LayoutLibero"_L1, 70, 70},
    Tabella{"Layout5"_L1, "LayoutLibero"_L1, 70, 70},
    Tabella{"Layout6"_L1, "LayoutLibero"_L1, 70, 70},
    Tabella{"Layout7"_L1, "LayoutLibero"_L1, 70, 70},
    Tabella{"Layout8"_L1, "LayoutLibero"_L1, 70, 70},
    Tabella{"Layout9"_L1, "LayoutLibero"_L1, 70, 70},
    Tabella{"Layout10"_L1, "LayoutLibero"_L1, 70, 70},
    Tabella{"Decorazioni"_L1, "Decorazioni"_L1, 0, senzaLimite},
    Tabella{"VideoYT"_L1, "VideoYT"_L1, 0, senzaLimite},
    Tabella{"radio"_L1, "radio"_L1, 0, senzaLimite},
    Tabella{"TG"_L1, "TG"_L1, 1, 1},
    Tabella{"ComuniMeteo"_L1, "ComuniMeteo"_L1, 1, senzaLimite},
    Tabella{"Servizi"_L1, "Servizi"_L1, 20, 20},
    Tabella{"PostazioneUtente"_L1, "PostazioneUtente"_L1, 1, 1},
    Tabella{"DinDon"_L1, "DinDon"_L1, 0, senzaLimite},
};

const std::array tabelleTotem{
    Tabella{"Numerazione"_L1, "Numerazione"_L1, 1, 1},
    Tabella{"NumerazioneIniziale"_L1, "NumerazioneIniziale"_L1, 1, 1},
    Tabella{"DatiDaStampareIMP"_L1, "DatiDaStampareIMP"_L1, 1, senzaLimite, true},
};

constexpr std::array cartelle{nomi::decorazioni, nomi::sfondi, nomi::suoni};
constexpr std::array testi{nomi::frase, nomi::aiutoVoce, nomi::bigliettoNuovo};
constexpr std::array necessari{nomi::frase, nomi::aiutoVoce, nomi::sfondoBase, nomi::corniceLibera};
constexpr std::array categorie{nomi::cornici, nomi::banner, nomi::elementi};

QByteArray leggi(const QString &nome) {
    QFile file(u":/zuvora-installa/"_s + nome);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}
} // namespace

const Archivio archivioZuvora{nomi::archivio, "zuvora"_L1, tabelleZuvora};
const Archivio archivioTotem{nomi::archivioTotemNuovo, "totem"_L1, tabelleTotem};

std::span<const QStringView> cartelleDiFile() {
    return cartelle;
}

std::span<const QStringView> fileDiTesto() {
    return testi;
}

std::span<const QStringView> fileNecessari() {
    return necessari;
}

QStringView cartellaDecorazioni(int tipo) {
    const bool noto = tipo >= 1 && tipo <= static_cast<int>(categorie.size());
    return noto ? categorie[static_cast<std::size_t>(tipo - 1)] : QStringView();
}

QByteArray schemaDi(const Archivio &archivio) {
    return leggi(u"schema/%1.sql"_s.arg(archivio.schema));
}

QByteArray righeDi(QLatin1StringView righe, bool esempio) {
    QByteArray testo;
    if (esempio)
        testo = leggi(u"esempio/%1.csv"_s.arg(righe));
    return testo.isEmpty() ? leggi(u"righe/%1.csv"_s.arg(righe)) : testo;
}

QByteArray improntePredefinite() {
    return leggi(u"impronte.txt"_s);
}

QByteArray testoDi(QStringView file) {
    return leggi(file.toString());
}

} // namespace zuvora::installa
