#pragma once

#include "designer/logic/DisplayLayout.h"
#include "designer/logic/ImmaginiQt.h"
#include "designer/logic/Righe.h"
#include "shell/store/Recordset.h"

#include <QSet>
#include <QStringList>
#include <optional>
#include <utility>
#include <vector>

namespace zuvora {

// What the user should know after a layout was read. The layout is usable in every case.
struct EsitoLettura {
    int righe = 0;      // rows found, at most 70
    QStringList avvisi; // Italian sentences, empty when all went well

    // All sentences for one message, at most `massimo` of them.
    QString testo(int massimo = 8) const;
};

// Reads a layout in two steps, so that whoever shows it can wait for the pictures in between.
// Rows 1 to 31: a value that is missing or no good leaves that property, silently. Row 32: a background that can't be
// loaded ends the row, silently, and its path doesn't reach Label2. Rows 33 to 70: a bad value leaves that property, a
// picture that can't be loaded leaves the decoration marked as missing with its path kept; both add a sentence. Fewer
// rows than 70 leave the other elements at their start values and add a sentence.
class LetturaLayout {
public:
    // Reads the rows of the layout's table into a layout that stands at its start values, and says which pictures will
    // be asked for. `cartella` is the application folder. Throws EngineError when the table itself can't be read
    // (missing, locked, damaged): such a layout must not be edited, for a save would replace what wasn't read.
    LetturaLayout(DisplayLayout &layout, CaricatoreImmagini &immagini, QString cartella);
    const QStringList &percorsi() const { return m_percorsi; } // the pictures that risolvi() asks for
    // Asks for the pictures. Once only.
    EsitoLettura risolvi();

private:
    using Avviso = std::pair<int, QString>; // row it belongs to

    void leggiRiga(Recordset &rs, int posto);
    std::optional<Valore> valore(Recordset &rs, int posto, ColonnaLayout c);
    void avvisa(int posto, const QString &frase);
    void ordinaAvvisi();
    void prepara(const QString &percorso);
    void leggiSfondo(Recordset &rs);
    void chiediImmagine(int posto);
    void risolviSfondo(const Valore &v);
    void risolviDecorazione(int posto);

    DisplayLayout &m_layout;
    CaricatoreImmagini &m_immagini;
    QString m_cartella;
    EsitoLettura m_esito;
    QSet<ColonnaLayout> m_colonneMancanti;
    std::optional<Valore> m_sfondo;
    std::vector<int> m_conImmagine; // decorations, by row
    std::vector<Avviso> m_avvisi;
    QStringList m_percorsi;
    bool m_corniceSegnalata = false;
};

// Both steps.
EsitoLettura CaricaLayout(DisplayLayout &layout, CaricatoreImmagini &immagini, const QString &cartella);

} // namespace zuvora
