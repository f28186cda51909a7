#pragma once

#include "shell/host/Controllo.h"

#include <QString>
#include <QTableView>
#include <vector>

namespace zuvora {

class Data;
class ModelloDati;

// A list bound to a Data object: it shows the record set's rows, and its selected row is the current record. Rows are
// read when they come into view.
class Grid : public Controllo<QTableView> {
    Q_OBJECT
public:
    struct Colonna {
        const char *titolo;
        const char *campo;
        int larghezza; // twips; 0 takes what is left
    };

    Grid(QWidget *padre, const char *nome, const Posto &posto, std::vector<Colonna> colonne);
    ~Grid() override;
    // Binds the list. Each Refresh of `dato` fills it again and selects the first row. `dato` must outlive the grid.
    void lega(Data &dato);
    int Rows() const;
    int Row() const;          // 0-based, -1 without a selected row
    void seleziona(int riga); // and brings it into view; the row becomes the current record
    QString testo(int riga, int colonna) const;

Q_SIGNALS:
    void cliccato();     // a click on a row, which is the current one by then
    void rigaCambiata(); // the user went to another row, by mouse or keyboard
    void attivato();     // double click, Enter or Space on a row

protected:
    void keyPressEvent(QKeyEvent *e) override;
    void mouseReleaseEvent(QMouseEvent *e) override;
    void mouseDoubleClickEvent(QMouseEvent *e) override;
    void currentChanged(const QModelIndex &attuale, const QModelIndex &precedente) override;

private:
    void riempi();
    ModelloDati *m_modello;
    Data *m_dato = nullptr;
    bool m_riempimento = false;
    bool m_doppio = false; // the release of a double click is no click of its own
};

} // namespace zuvora
