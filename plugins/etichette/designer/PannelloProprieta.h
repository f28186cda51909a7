#pragma once

#include "etichette/logic/Progetto.h"
#include "etichette/logic/Valori.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QWidget>

class QFormLayout;

namespace zuvora {

class CampoMisura;
class CampoTesto;

// The selected objects in numbers and words. Place, measures and contents are always there; what only some kinds have
// is shown for those alone.
class PannelloProprieta : public QWidget {
    Q_OBJECT
public:
    PannelloProprieta(Progetto &progetto, QWidget *padre);
    void setVariabili(const QStringList &nomi);
    void modificaContenuto(); // the focus goes to what one changes first

Q_SIGNALS:
    void immagineChiesta();

protected:
    bool eventFilter(QObject *o, QEvent *e) override;

private:
    struct Riga {
        QWidget *campo;
        QList<TipoOggetto> tipi; // empty: all
        QString aiuto;           // the field's own, where it isn't told why it can't be used
    };
    void disponiPosto(QFormLayout &righe);
    void disponiTesto(QFormLayout &righe);
    void disponiDisegno(QFormLayout &righe);
    void aggiungi(QFormLayout &righe, const QString &etichetta, QWidget *campo, const QList<TipoOggetto> &tipi = {});
    QCheckBox *casella(const QString &testo, const char *nome, bool StileTesto::*membro);
    QComboBox *scelta(const char *nome, const QString &descrizione, const QStringList &voci);
    void mostra();
    void mostraPosto();
    void mostraUno(const Oggetto &o);
    void abilita(const Riga &riga, const QString &impedimento);
    bool sempre(const QWidget *campo) const;
    void misura(CampoMisura *campo, void (*azione)(QRect &, int));
    template <class F> void cambia(const QString &testo, F azione) {
        if (!m_mostro)
            m_progetto.cambia(testo, azione);
    }

    Progetto &m_progetto;
    QFormLayout *m_righe = nullptr;
    QList<Riga> m_campi;
    bool m_mostro = false; // the boxes are being filled: nothing was changed by hand
    QLabel *m_titolo;
    QLabel *m_aiuto; // what to do where nothing can be changed
    CampoMisura *m_x, *m_y, *m_larghezza, *m_altezza, *m_spessore, *m_raggio;
    CampoTesto *m_testo;
    QComboBox *m_font, *m_orizzontale, *m_verticale, *m_rotazione, *m_codice, *m_riduzione, *m_condizione, *m_seVuota;
    QDoubleSpinBox *m_punti;
    QSpinBox *m_soglia;
    QCheckBox *m_leggibile, *m_pieno, *m_bloccato;
    QList<std::pair<QCheckBox *, bool StileTesto::*>> m_stili;
    QPushButton *m_immagine;
};

} // namespace zuvora
