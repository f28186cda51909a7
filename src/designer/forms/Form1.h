#pragma once

#include "designer/forms/ApritoriTela.h"
#include "designer/forms/BarraStrumenti.h"
#include "designer/forms/Contorno.h"
#include "designer/forms/ElementiTela.h"
#include "designer/forms/Palpito.h"
#include "designer/forms/Scena.h"
#include "designer/logic/Finestra.h"
#include "designer/logic/Selezione.h"
#include "designer/logic/Trascinamento.h"
#include "shell/host/Form.h"
#include "shell/logic/Messaggio.h"

#include <QMenu>

namespace zuvora {

// The designer: a form as large as the call display's screen, with one layout on it as it will stand there. It has no
// frame, so that it covers a screen of its size exactly; the toolbox moves it.
class Form1 : public Form {
public:
    // The layout has been read; it and the pictures outlive the form. `tela` is the canvas in twips.
    Form1(const Ambiente &ambiente, DisplayLayout &layout, ImmaginiQt &immagini, ApritoriTela apritori, Dimensione tela,
          QWidget *padre);

    const QString &ElementoSelezionato() const { return m_selezionato; }
    const QString &DidascaliaBase() const { return m_didascaliaBase; }
    // Told once the form is on the screen; empty for nothing to tell.
    void avvisaAllApertura(const QString &testo) { m_avviso = testo; }

protected:
    void attivata() override;
    bool event(QEvent *e) override;
    void hideEvent(QHideEvent *e) override;
    void keyPressEvent(QKeyEvent *e) override;
    void mouseMoveEvent(QMouseEvent *e) override;
    void mousePressEvent(QMouseEvent *e) override;
    void mouseReleaseEvent(QMouseEvent *e) override;
    void paintEvent(QPaintEvent *e) override;
    void wheelEvent(QWheelEvent *e) override;

private:
    // Mouse: elements and the bare canvas, handles, the toolbox's strip and grip.
    void mouseElemento(int posto, Fase fase, const QMouseEvent &evento);
    void mouseManiglia(int indice, Fase fase, const QMouseEvent &evento);
    void mouseStriscia(Fase fase, const QMouseEvent &evento);
    void mousePresa(Fase fase, const QMouseEvent &evento);
    void mouseStrumenti(Fase fase, const QMouseEvent &evento);
    void premi(int posto, Qt::MouseButton bottone, QPoint cursore);
    void esegui(AzionePressione azione, int posto, QPoint cursore);
    void segui(QPoint cursore);
    void rilascia(int posto, Qt::MouseButton bottone);
    bool fermo() const { return m_trascinamento.StatoTrascinamento() == Trascinamento::Stato::Fermo; }
    void iniziaContorno(Qt::CursorShape cursore);
    void mostraContorno();
    void fineContorno();
    void lasciaMouse();
    void interrompi();
    void MostraManiglie(bool mostra);
    void disponiManiglie();
    GeometriaForm geometria() const;

    // The form among the screens.
    void vai(PuntoTwips posizione);
    void raggiungi();
    void scorriSchermata(QPoint passo);
    void VaiSecondoSchermo();
    void SalvaPosizioneFinestra();

    // What a press or a button leads to.
    void lampo(int posto);
    void apriForm2(int posto);
    bool rileggi(const QString &percorso);
    void apriDecorazione(int indice);
    void apriSfondo();
    void apriAnteprimaTG();
    void comando(int indice);
    void piazzaElemento(const BottoneStrumenti &bottone);
    void piazzaPannello();
    void piazzaDecorazione();
    void indica(int posto);
    void SalvaLayout();
    void elimina();
    void mostra(const Messaggio &messaggio);

    // Shows an element, or all of them, as the layout has them now.
    void aggiorna(int posto);
    void aggiornaTutto();
    void segnaPiazzati();

    DisplayLayout &m_layout;
    ImmaginiQt &m_immagini;
    ApritoriTela m_apritori;
    Dimensione m_misura;
    Scena m_scena;
    Trascinamento m_trascinamento;
    bool FormAttivata = false;
    QString m_didascaliaBase;
    QString m_selezionato;
    QString m_avviso;

    ElementiTela m_elementi;
    std::array<Maniglietta *, numeroManiglie> picHandle{};
    BarraStrumenti SSPanel1;
    Contorno m_contorno{this};
    Palpito m_palpito{this};
    QMenu M2{QStringLiteral("Menu2"), this};
};

} // namespace zuvora
