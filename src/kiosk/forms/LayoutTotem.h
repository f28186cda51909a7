#pragma once

#include "kiosk/forms/BottoneTotem.h"
#include "kiosk/logic/Aspetto.h"
#include "kiosk/logic/Disposizione.h"
#include "shell/host/Form.h"

#include <QPixmap>
#include <optional>

namespace zuvora {

// What the kiosk's settings show on the screen while the preview is opened; all else it takes from the stored row.
struct RichiestaAnteprima {
    std::optional<int> schermo; // the chosen screen
    QStringList servizi;        // the names of the active services
    bool testoVisibile = false;
    bool dataVisibile = false;
    Misura finestra; // twips
};

// The preview of the kiosk's screen. It stores nothing, and its buttons do nothing.
class LayoutTotem : public Form {
public:
    LayoutTotem(const Ambiente &ambiente, const RichiestaAnteprima &richiesta, QWidget *padre);

protected:
    bool eventFilter(QObject *figlio, QEvent *e) override;
    void keyPressEvent(QKeyEvent *e) override;
    void mousePressEvent(QMouseEvent *e) override;
    void mouseMoveEvent(QMouseEvent *e) override;
    void paintEvent(QPaintEvent *e) override;
    void showEvent(QShowEvent *e) override;

private:
    void DisponiPulsanti(int schermo);
    bool mostraSfondo(const std::function<void()> &intanto);
    void scriviTitoloEData(int schermo);
    void vestiPulsanti();
    void avverti(const QString &frase);
    void mostraAvvisi();
    void componi();

    RichiestaAnteprima m_richiesta;
    AspettoTotem m_aspetto;
    QPixmap m_sfondo; // at its own size from the top left corner
    // The whole screen with its buttons and texts, drawn once: showing and moving it costs what its background would.
    QPixmap m_schermata;
    bool m_componendo = false;
    QStringList m_avvisi;
    QPoint m_presa; // of the press that moves the window, within its frame

    Schiera<BottoneTotem> Bottone;
    Label TitoloTXT{this, "TitoloTXT", "Scegli il Servizio.........", {120, 120, 4215, 345}};
    Label Label1{this, "Label1", "data/ora", {120, 120, 1215, 345}};
    Label Avviso{this, "Avviso", "", {120, 1050, 1215, 345}}; // what the preview doesn't show, and why
};

} // namespace zuvora
