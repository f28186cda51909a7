#include "library/logic/Aggiunta.h"

#include "library/logic/Decorazioni.h"
#include "shell/logic/CopiaFile.h"
#include "shell/store/Data.h"

#include <QDir>
#include <QFile>
#include <QUuid>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

constexpr auto prefisso = ".aggiunta-"_L1; // then the ID and a word that is never used again

bool haRiga(const QString &cartella, int Tipo, qlonglong oltreID, const QString &nome) {
    Data dato;
    Recordset &righe =
        apri(dato, cartella, u"Select * from Decorazioni where [Tipo]=%1 and [ID]>%2"_s.arg(Tipo).arg(oltreID));
    for (; !righe.Eof(); righe.MoveNext())
        if (testoDi(righe[u"File"].Value(), {}) == nome)
            return true;
    return false;
}

// A copy that can't be put in its place now waits for the next time.
void riparaAggiunta(const QString &cartella, int Tipo, const QDir &categoria, const QString &posto) {
    const qlonglong oltreID = posto.section(u'-', 1, 1).toLongLong();
    const QDir attesa(categoria.filePath(posto));
    const QStringList copie = attesa.entryList(QDir::Files | QDir::Hidden);
    for (const QString &nome : copie) {
        if (haRiga(cartella, Tipo, oltreID, nome))
            collocaFile(attesa.filePath(nome), categoria.filePath(nome));
        else
            QFile::remove(attesa.filePath(nome));
    }
    categoria.rmdir(posto);
}

} // namespace

QString postoTemporaneo(const QString &cartellaCategoria, qlonglong ultimoID, const QString &nome) {
    return cartellaCategoria + prefisso + QString::number(ultimoID) + u'-' +
           QUuid::createUuid().toString(QUuid::Id128) + u'/' + nome;
}

qlonglong ultimoID(const QString &PercorsoApplicazione) {
    Data dato;
    Recordset &righe = apri(dato, PercorsoApplicazione, u"Select * from Decorazioni order by [ID]"_s);
    if (righe.RecordCount() == 0)
        return 0;
    righe.MoveLast();
    return righe[u"ID"].Value().toLongLong();
}

void riparaAggiunte(const QString &PercorsoApplicazione) {
    for (std::size_t i = 0; i < categorieDecorazioni.size(); ++i) {
        const QDir categoria(cartellaDecorazioni(PercorsoApplicazione, int(i)));
        const QStringList sospese = categoria.entryList({prefisso + u"*"_s}, QDir::Dirs | QDir::Hidden);
        for (const QString &sospesa : sospese)
            riparaAggiunta(PercorsoApplicazione, categorieDecorazioni[i].Tipo, categoria, sospesa);
    }
}

} // namespace zuvora
