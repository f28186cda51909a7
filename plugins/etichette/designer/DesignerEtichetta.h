#pragma once

#include "etichette/biglietto/Stampante.h"
#include "etichette/logic/Bozza.h"
#include "etichette/logic/Progetto.h"
#include "etichette/logic/Valori.h"
#include "shell/host/Dialoghi.h"

#include <QDialog>
#include <QTimer>
#include <atomic>
#include <chrono>
#include <functional>
#include <memory>

class QBoxLayout;
class QComboBox;
class QLabel;
class QListWidget;
class QSpinBox;
class QToolButton;

namespace zuvora {

class Foglio;
class PannelloProprieta;

inline constexpr std::chrono::seconds attesaCartella{20}; // of a kiosk's folder on the network

// The window in which a ticket is designed: what can be put on it, the canvas, the selected object in numbers.
class DesignerEtichetta : public QDialog {
    Q_OBJECT
public:
    // What the designer has of the outside: tests give doubles.
    struct Mondo {
        Dialoghi &dialoghi;
        std::function<Stampanti()> stampanti;
        // The Italian reason, empty when the printer has the ticket.
        std::function<QString(const QString &stampante, const Etichetta &, const Valori &)> stampa;
        // The contents of the n-th record, from 1; nothing when there is none.
        std::function<std::optional<Valori>(int n)> record;
    };

    // `etichetta` is what `file` holds (native path), or what begins a new one.
    DesignerEtichetta(const Etichetta &etichetta, const Valori &valori, const QString &titolo, const QString &file,
                      Mondo mondo, QWidget *padre);
    ~DesignerEtichetta() override;

    // The state of an earlier session, as one step that can be undone.
    void recupera(const Etichetta &bozza);

protected:
    void closeEvent(QCloseEvent *e) override;
    void reject() override { close(); }
    void keyPressEvent(QKeyEvent *e) override;
    void showEvent(QShowEvent *e) override;

private:
    QToolButton *bottone(QBoxLayout &riga, const char *nome, const QString &testo, const QString &aiuto,
                         std::function<void()> azione, const QKeySequence &tasti = {});
    void primaRiga(QBoxLayout &riga);
    void secondaRiga(QBoxLayout &riga);
    void menuAllinea(QToolButton &bottone);
    void disponiElenco(QBoxLayout &colonna);
    void aggiungi(TipoOggetto tipo);
    void aggiungiImmagine();
    void aggiungiVariabile(const QString &nome, const std::optional<QPoint> &posto = {});
    std::optional<QByteArray> chiediImmagine();
    void scegliImmagine();
    bool salva();
    bool salvaIn(const QString &file);
    void salvaCopia();
    void esportaPdf();
    void stampaProva();
    void avvisa(const QString &testo);
    void mostraRecord(int n);
    void mostraStato();
    void mostraAvvisi();
    void scriviBozza();
    void togliBozza();
    void di(const QString &testo);
    void copia();
    void incolla();

    Progetto m_progetto;
    Valori m_primo; // of the first record, as the opener gave them
    Valori m_valori;
    QString m_titolo;
    QString m_file;
    Mondo m_mondo;
    Bozza m_bozza;
    bool m_bozzaInCorso = false;
    std::shared_ptr<std::atomic<bool>> m_bozzaSuperata;
    QTimer m_orologio;     // writes the draft a moment after the last change
    QTimer m_attesaAvvisi; // and tells what will not print well: a look at every object is not for each key
    Foglio *m_foglio;
    PannelloProprieta *m_proprieta;
    QListWidget *m_variabili;
    QSpinBox *m_zoom;
    QLabel *m_nota;
};

} // namespace zuvora
