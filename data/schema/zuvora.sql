-- Zuvora.mdb: the settings database, in the application folder. The sibling programs read the same file.
--
-- Declared types: BOOLEAN (0/1), INTEGER, REAL, TEXT. Places and sizes are twips (15 to the pixel), colours whole
-- numbers with red in the lowest byte. Names are matched without regard to case. A table that the program opens with
-- "select * ..." carries an ID, by which its rows are found again; one-row tables and layouts need none.

-- The version of the data; one row.
CREATE TABLE Versione (
    Numero TEXT,
    Data   TEXT
);

-- Display and installation settings; one row.
CREATE TABLE Configurazione (
    MisuraFormWH      INTEGER, -- call display: 1 = 1024 x 768, 2 = 1366 x 768, 3 = 1920 x 1080, 4 = 1080 x 1920
    MisuraFormLeft    REAL,    -- designer's left edge; 0 = first screen
    MisuraFormTop     REAL,
    Nominativo        TEXT,    -- "SERVER1" in any case marks the principal installation
    TempoChiamata     INTEGER, -- Auto-Start Front-End: 1 = on, 2 = off
    PlayDinDon        BOOLEAN,
    dindon            TEXT,
    StringaScorrevole TEXT,
    cartellamp3       TEXT,
    playlistFoto      TEXT,
    playlistVideo     TEXT,
    tempo             REAL,    -- milliseconds an image stays on the screen
    plyt              TEXT,
    meteo             TEXT,
    MeteoCode         TEXT,
    qualelayout       INTEGER, -- 1 to 10 = Layout1 to Layout10, 99 = LayoutBase
    ModoClient        INTEGER, -- 1 = Automatica, 2 = Selettiva
    IPServer          TEXT,
    ServerName        TEXT,
    RHPort            TEXT     -- digits
);

-- The kiosk's screen and folder; one row. Colours and font sizes are decimal text, as their boxes hold them.
CREATE TABLE ConfigurazioneTotem (
    RisoluzioneTotem    INTEGER, -- 0 = 1280 x 1024, 1 = 1920 x 1080, 2 = 1440 x 900, 3 = 800 x 600
    PercorsoReteTotem   TEXT,    -- the folder of TotemZuvora.mdb
    SfondoTotem         TEXT,
    TitoloTotem         TEXT,
    FontTitolo          TEXT,
    FontSizeTitolo      TEXT,
    FontForecolorTitolo TEXT,
    FontBoldTitolo      BOOLEAN,
    FontItalicTitolo    BOOLEAN,
    FontData            TEXT,
    FontSizeData        TEXT,
    FontForecolorData   TEXT,
    FontBoldData        BOOLEAN,
    FontItalicData      BOOLEAN,
    Font                TEXT,    -- Font to FontItalic: the service buttons
    FontSize            TEXT,
    FontForecolor       TEXT,
    FontBold            BOOLEAN,
    FontItalic          BOOLEAN,
    TestoVisibile       BOOLEAN,
    DataVisibile        BOOLEAN
);

-- Names of the display layouts; eleven rows in the order LayoutBase, Layout1 to Layout10.
CREATE TABLE DescrizioneLayout (
    LayoutNome        TEXT,
    LayoutDescrizione TEXT
);

-- The display layouts: 70 rows each, whose stored order is the format (the n-th row is the n-th element).
CREATE TABLE LayoutBase (
    DescCampo TEXT, testo TEXT, NomeFont TEXT, DimFont REAL, FontBold BOOLEAN, FontItalic BOOLEAN,
    ColoreSfondo INTEGER, ColoreTesto INTEGER, Allineamento INTEGER, Visibile BOOLEAN, SfondoTestoTrasparente BOOLEAN,
    [top] REAL, [left] REAL, Altezza REAL, Larghezza REAL, PercorsoImmagine TEXT
);
CREATE TABLE Layout1 (
    DescCampo TEXT, testo TEXT, NomeFont TEXT, DimFont REAL, FontBold BOOLEAN, FontItalic BOOLEAN,
    ColoreSfondo INTEGER, ColoreTesto INTEGER, Allineamento INTEGER, Visibile BOOLEAN, SfondoTestoTrasparente BOOLEAN,
    [top] REAL, [left] REAL, Altezza REAL, Larghezza REAL, PercorsoImmagine TEXT
);
CREATE TABLE Layout2 (
    DescCampo TEXT, testo TEXT, NomeFont TEXT, DimFont REAL, FontBold BOOLEAN, FontItalic BOOLEAN,
    ColoreSfondo INTEGER, ColoreTesto INTEGER, Allineamento INTEGER, Visibile BOOLEAN, SfondoTestoTrasparente BOOLEAN,
    [top] REAL, [left] REAL, Altezza REAL, Larghezza REAL, PercorsoImmagine TEXT
);
CREATE TABLE Layout3 (
    DescCampo TEXT, testo TEXT, NomeFont TEXT, DimFont REAL, FontBold BOOLEAN, FontItalic BOOLEAN,
    ColoreSfondo INTEGER, ColoreTesto INTEGER, Allineamento INTEGER, Visibile BOOLEAN, SfondoTestoTrasparente BOOLEAN,
    [top] REAL, [left] REAL, Altezza REAL, Larghezza REAL, PercorsoImmagine TEXT
);
CREATE TABLE Layout4 (
    DescCampo TEXT, testo TEXT, NomeFont TEXT, DimFont REAL, FontBold BOOLEAN, FontItalic BOOLEAN,
    ColoreSfondo INTEGER, ColoreTesto INTEGER, Allineamento INTEGER, Visibile BOOLEAN, SfondoTestoTrasparente BOOLEAN,
    [top] REAL, [left] REAL, Altezza REAL, Larghezza REAL, PercorsoImmagine TEXT
);
CREATE TABLE Layout5 (
    DescCampo TEXT, testo TEXT, NomeFont TEXT, DimFont REAL, FontBold BOOLEAN, FontItalic BOOLEAN,
    ColoreSfondo INTEGER, ColoreTesto INTEGER, Allineamento INTEGER, Visibile BOOLEAN, SfondoTestoTrasparente BOOLEAN,
    [top] REAL, [left] REAL, Altezza REAL, Larghezza REAL, PercorsoImmagine TEXT
);
CREATE TABLE Layout6 (
    DescCampo TEXT, testo TEXT, NomeFont TEXT, DimFont REAL, FontBold BOOLEAN, FontItalic BOOLEAN,
    ColoreSfondo INTEGER, ColoreTesto INTEGER, Allineamento INTEGER, Visibile BOOLEAN, SfondoTestoTrasparente BOOLEAN,
    [top] REAL, [left] REAL, Altezza REAL, Larghezza REAL, PercorsoImmagine TEXT
);
CREATE TABLE Layout7 (
    DescCampo TEXT, testo TEXT, NomeFont TEXT, DimFont REAL, FontBold BOOLEAN, FontItalic BOOLEAN,
    ColoreSfondo INTEGER, ColoreTesto INTEGER, Allineamento INTEGER, Visibile BOOLEAN, SfondoTestoTrasparente BOOLEAN,
    [top] REAL, [left] REAL, Altezza REAL, Larghezza REAL, PercorsoImmagine TEXT
);
CREATE TABLE Layout8 (
    DescCampo TEXT, testo TEXT, NomeFont TEXT, DimFont REAL, FontBold BOOLEAN, FontItalic BOOLEAN,
    ColoreSfondo INTEGER, ColoreTesto INTEGER, Allineamento INTEGER, Visibile BOOLEAN, SfondoTestoTrasparente BOOLEAN,
    [top] REAL, [left] REAL, Altezza REAL, Larghezza REAL, PercorsoImmagine TEXT
);
CREATE TABLE Layout9 (
    DescCampo TEXT, testo TEXT, NomeFont TEXT, DimFont REAL, FontBold BOOLEAN, FontItalic BOOLEAN,
    ColoreSfondo INTEGER, ColoreTesto INTEGER, Allineamento INTEGER, Visibile BOOLEAN, SfondoTestoTrasparente BOOLEAN,
    [top] REAL, [left] REAL, Altezza REAL, Larghezza REAL, PercorsoImmagine TEXT
);
CREATE TABLE Layout10 (
    DescCampo TEXT, testo TEXT, NomeFont TEXT, DimFont REAL, FontBold BOOLEAN, FontItalic BOOLEAN,
    ColoreSfondo INTEGER, ColoreTesto INTEGER, Allineamento INTEGER, Visibile BOOLEAN, SfondoTestoTrasparente BOOLEAN,
    [top] REAL, [left] REAL, Altezza REAL, Larghezza REAL, PercorsoImmagine TEXT
);

-- Catalogue of frames (Tipo 1), banners (2) and elements (3). The pictures of the product have the IDs up to 171; rows of
-- the user begin behind them, whatever was removed.
CREATE TABLE Decorazioni (
    ID   INTEGER PRIMARY KEY AUTOINCREMENT,
    File TEXT COLLATE NOCASE, -- name with extension, without folder
    Tipo INTEGER
);
INSERT INTO sqlite_sequence (name, seq) VALUES ('Decorazioni', 171);

-- YouTube entries.
CREATE TABLE VideoYT (
    ID     INTEGER PRIMARY KEY,
    Titolo TEXT COLLATE NOCASE,
    Url    TEXT
);

-- Internet radio stations.
CREATE TABLE radio (
    ID          INTEGER PRIMARY KEY,
    NomeRadio   TEXT COLLATE NOCASE,
    PercorsoURL TEXT
);

-- The online news source; one row.
CREATE TABLE TG (
    NomeTG      TEXT,
    PercorsoURL TEXT
);

-- Towns and their codes at the weather service; leading zeros belong to the code.
CREATE TABLE ComuniMeteo (
    ID        INTEGER PRIMARY KEY,
    Codice    TEXT,
    Comune    TEXT COLLATE NOCASE,
    Provincia TEXT,
    Regione   TEXT
);

-- The services of the queue; twenty rows, "Nessun Servizio" marks a free one.
CREATE TABLE Servizi (
    ID             INTEGER PRIMARY KEY,
    Servizio       TEXT,
    ServizioAttivo BOOLEAN,
    Percorsofoto   TEXT
);

-- Type of the ten workstations, "SG" or "ST"; one row.
CREATE TABLE PostazioneUtente (
    Posto1SS TEXT, Posto2SS TEXT, Posto3SS TEXT, Posto4SS TEXT, Posto5SS  TEXT,
    Posto6SS TEXT, Posto7SS TEXT, Posto8SS TEXT, Posto9SS TEXT, Posto10SS TEXT
);

-- Call sounds, in the form \\MACHINE\folder\file.wav.
CREATE TABLE DinDon (
    ID     INTEGER PRIMARY KEY,
    DinDon TEXT
);
