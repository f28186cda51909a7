#pragma once

#include "kit/Fratello.h"
#include "shell/store/Data.h"
#include "shell/store/Database.h"
#include "shell/store/EngineError.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace zuvora::prova {

using namespace Qt::Literals::StringLiterals;

inline constexpr const char *schema = R"(
PRAGMA synchronous=OFF; BEGIN;
CREATE TABLE Versione(Numero TEXT, Data TEXT);
INSERT INTO Versione VALUES('Versione 3.1.11', 'del 03 Ottobre 2013');
CREATE TABLE Configurazione(MisuraFormWH INTEGER, Nominativo TEXT, PlayDinDon BOOLEAN, dindon TEXT, tempo REAL, MeteoCode TEXT);
INSERT INTO Configurazione DEFAULT VALUES;
CREATE TABLE radio(ID INTEGER PRIMARY KEY, NomeRadio TEXT COLLATE NOCASE, PercorsoURL TEXT);
INSERT INTO radio VALUES(7,'Zeta','u7'),(3,'alfa','u3'),(5,'L''Onda','u5'),(9,'Città','u9');
CREATE TABLE Servizi(ID INTEGER PRIMARY KEY, Servizio TEXT, ServizioAttivo BOOLEAN);
INSERT INTO Servizi VALUES(1,'Cassa',1),(2,'Ritiro',0),(3,'Esami',-1),(4,NULL,NULL);
CREATE TABLE ComuniMeteo(ID INTEGER PRIMARY KEY, Codice TEXT, Comune TEXT COLLATE NOCASE, Provincia TEXT, Regione TEXT);
INSERT INTO ComuniMeteo(Codice,Comune) VALUES('058091','Roma'),('030','Romans d''Isonzo'),('015146','Milano'),('1','Aromo');
CREATE TABLE Decorazioni(ID INTEGER PRIMARY KEY, Tipo INTEGER, File TEXT);
INSERT INTO Decorazioni VALUES(1,1,'b.png'),(2,2,'c.png'),(3,1,'a.png'),(4,3,'d.png');
CREATE TABLE VideoYT(ID INTEGER PRIMARY KEY, Titolo TEXT, Url TEXT);
INSERT INTO VideoYT VALUES(1,'secondo','x'),(2,'primo','y');
CREATE TABLE DatiDaStampareIMP(Numero INTEGER, Servizio TEXT, Emesso DATE);
INSERT INTO DatiDaStampareIMP VALUES(12,'Cassa','2013-10-03');
CREATE TABLE Layout1(DescCampo TEXT, Top REAL, [Left] REAL, DimFont SINGLE, Visibile BOOLEAN);
CREATE INDEX indice ON Layout1(DescCampo);
INSERT INTO Layout1 VALUES('c',1,2,27.75,1),('a',3,4,8,0),('b',NULL,NULL,NULL,NULL);
CREATE TABLE Vuota(Testo TEXT);
CREATE VIEW Attivi AS SELECT Servizio FROM Servizi WHERE ServizioAttivo;
COMMIT;
)";

class Archivio : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(m_cartella.isValid());
        Fratello f(percorso());
        ASSERT_EQ(f.esegui(QString::fromUtf8(schema)), SQLITE_OK);
    }
    QString cartella() const { return m_cartella.path(); }
    QString percorso() const { return m_cartella.filePath(u"Zuvora.mdb"_s); }
    Recordset &apri(Data &d, const QString &sorgente) const { return zuvora::apri(d, cartella(), sorgente); }

private:
    QTemporaryDir m_cartella;
};

// The number of the failure that an operation ends in, 0 when it succeeds.
template <class F> int numeroDi(F &&operazione) {
    try {
        operazione();
    } catch (const EngineError &e) {
        return e.Number();
    }
    return 0;
}

inline QByteArray contenuto(const QString &percorso) {
    QFile f(percorso);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

} // namespace zuvora::prova
