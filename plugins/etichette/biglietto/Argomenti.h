#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <optional>
#include <utility>

namespace zuvora {

// What the command line asks for.
struct Argomenti {
    enum class Uscita { Pdf, Png, Stampante };

    QString cartella; // the kiosk's
    int record = 1;   // from 1
    QList<std::pair<QString, QString>> valori;
    Uscita uscita = Uscita::Pdf;
    QString destinazione; // file or printer
    int dpi = 0;          // of a picture; 0: the ticket's own
};

struct ArgomentiLetti {
    std::optional<Argomenti> argomenti;
    QString errore; // Italian; empty with `aiuto`
    bool aiuto = false;
};

// `parole` are those behind the program's name.
ArgomentiLetti leggiArgomenti(const QStringList &parole);
QString usoBiglietto();

} // namespace zuvora
