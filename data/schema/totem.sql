-- TotemZuvora.mdb: the kiosk's database, in the kiosk's folder on the network. The kiosk writes it too.

-- The number that each service stands at now; one row. Pn belongs to the n-th row of Servizi.
CREATE TABLE Numerazione (
    P1  INTEGER, P2  INTEGER, P3  INTEGER, P4  INTEGER, P5  INTEGER,
    P6  INTEGER, P7  INTEGER, P8  INTEGER, P9  INTEGER, P10 INTEGER,
    P11 INTEGER, P12 INTEGER, P13 INTEGER, P14 INTEGER, P15 INTEGER,
    P16 INTEGER, P17 INTEGER, P18 INTEGER, P19 INTEGER, P20 INTEGER
);

-- The first number of each service; one row.
CREATE TABLE NumerazioneIniziale (
    P1  INTEGER, P2  INTEGER, P3  INTEGER, P4  INTEGER, P5  INTEGER,
    P6  INTEGER, P7  INTEGER, P8  INTEGER, P9  INTEGER, P10 INTEGER,
    P11 INTEGER, P12 INTEGER, P13 INTEGER, P14 INTEGER, P15 INTEGER,
    P16 INTEGER, P17 INTEGER, P18 INTEGER, P19 INTEGER, P20 INTEGER
);

-- What a ticket can print. Its columns are the variables of the ticket designer, its first row their sample contents; a
-- column added here is offered without further ado. A DATE is kept as YYYY-MM-DD.
CREATE TABLE DatiDaStampareIMP (
    Numero              INTEGER,
    Lettera             TEXT,
    Servizio            TEXT,
    [Data]              DATE,
    Ora                 TEXT,
    PersoneInAttesa     INTEGER,
    MinutiDiAttesa      REAL,
    Prioritario         BOOLEAN,
    TitoloInstallazione TEXT,
    Messaggio           TEXT
);
