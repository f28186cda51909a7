#include "shell/host/Tastiera.h"

#include "shell/host/Button.h"

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPointer>
#include <algorithm>
#include <vector>

namespace zuvora {
namespace {

// Kept with the field, so that it goes with it.
class Legame : public QObject {
public:
    Legame(QWidget &campo, QAbstractButton &suo) : QObject(&campo), bottone(&suo) {}
    QPointer<QAbstractButton> bottone;
};

bool premibile(const QAbstractButton *b) {
    return b->isEnabled() && b->isVisible();
}

int distanzaFra(const QWidget *a, const QWidget *b) {
    const QPoint scarto = a->mapToGlobal(a->rect().center()) - b->mapToGlobal(b->rect().center());
    return scarto.manhattanLength();
}

Button *principaleDi(const QWidget *cornice, const QWidget *vicinoA) {
    Button *trovato = nullptr;
    const auto bottoni = cornice->findChildren<Button *>();
    for (Button *b : bottoni)
        if (b->ruolo() == Ruolo::Principale && premibile(b) &&
            (trovato == nullptr || distanzaFra(b, vicinoA) < distanzaFra(trovato, vicinoA)))
            trovato = b;
    return trovato;
}

bool siModifica(const QWidget *w) {
    if (const auto *riga = qobject_cast<const QLineEdit *>(w))
        return !riga->isReadOnly();
    if (const auto *testo = qobject_cast<const QPlainTextEdit *>(w))
        return !testo->isReadOnly();
    return qobject_cast<const QComboBox *>(w) != nullptr || qobject_cast<const QAbstractSpinBox *>(w) != nullptr;
}

bool prendeFuoco(const QWidget *w, const QWidget &radice) {
    return (w->focusPolicy() & Qt::TabFocus) != 0 && w->isEnabled() && w->isVisibleTo(&radice);
}

struct Pezzo {
    QWidget *widget;
    QRect dove;
};

// Pieces that stand beside one another make a line. The band that all of them share decides, so that a tall list does
// not draw a whole column of buttons into its line.
void inLettura(std::vector<Pezzo> &pezzi) {
    std::stable_sort(pezzi.begin(), pezzi.end(), [](const Pezzo &a, const Pezzo &b) {
        return std::pair(a.dove.top(), a.dove.left()) < std::pair(b.dove.top(), b.dove.left());
    });
    for (auto inizio = pezzi.begin(); inizio != pezzi.end();) {
        int sopra = inizio->dove.top();
        int sotto = inizio->dove.bottom();
        auto fine = inizio + 1;
        for (; fine != pezzi.end(); ++fine) {
            const int comune = std::min(sotto, fine->dove.bottom()) - std::max(sopra, fine->dove.top());
            if (2 * comune < std::min(sotto - sopra, fine->dove.height()))
                break;
            sopra = std::max(sopra, fine->dove.top());
            sotto = std::min(sotto, fine->dove.bottom());
        }
        std::stable_sort(inizio, fine, [](const Pezzo &a, const Pezzo &b) { return a.dove.left() < b.dove.left(); });
        inizio = fine;
    }
}

void raccogli(const QWidget &cornice, std::vector<QWidget *> &ordine) {
    std::vector<Pezzo> pezzi;
    const auto figli = cornice.findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    for (QWidget *figlio : figli)
        if (!figlio->isWindow())
            pezzi.push_back({figlio, figlio->geometry()});
    inLettura(pezzi);
    for (const Pezzo &pezzo : pezzi) {
        if (pezzo.widget->focusPolicy() != Qt::NoFocus)
            ordine.push_back(pezzo.widget); // a control's own parts keep their order
        else
            raccogli(*pezzo.widget, ordine);
    }
}

} // namespace

void bottoneDi(QWidget &campo, QAbstractButton &bottone) {
    const auto vecchi = campo.findChildren<QObject *>(QString(), Qt::FindDirectChildrenOnly);
    for (QObject *vecchio : vecchi)
        if (dynamic_cast<Legame *>(vecchio) != nullptr)
            delete vecchio;
    new Legame(campo, bottone);
}

QAbstractButton *bottonePerInvio(QWidget *fuoco) {
    auto *suo = qobject_cast<QAbstractButton *>(fuoco);
    if (suo != nullptr && !suo->isCheckable())
        return premibile(suo) ? suo : nullptr;
    for (const QWidget *w = fuoco; w != nullptr; w = w->isWindow() ? nullptr : w->parentWidget()) {
        const auto figli = w->children();
        for (const QObject *figlio : figli)
            if (const auto *legame = dynamic_cast<const Legame *>(figlio); legame != nullptr && legame->bottone)
                return premibile(legame->bottone) ? legame->bottone.data() : nullptr;
        if (Button *principale = principaleDi(w, fuoco))
            return principale;
    }
    return suo != nullptr && premibile(suo) ? suo : nullptr; // a radio button or check box of a form that saves at once
}

void ordinaFuochi(QWidget &finestra) {
    std::vector<QWidget *> ordine;
    raccogli(finestra, ordine);
    for (std::size_t i = 1; i < ordine.size(); ++i)
        QWidget::setTabOrder(ordine[i - 1], ordine[i]);
}

QWidget *primoFuoco(QWidget &radice) {
    std::vector<QWidget *> ordine;
    raccogli(radice, ordine);
    std::erase_if(ordine, [&](const QWidget *w) { return !prendeFuoco(w, radice); });
    if (ordine.empty())
        return nullptr;
    if (const auto campo = std::find_if(ordine.begin(), ordine.end(), siModifica); campo != ordine.end())
        return *campo;
    const auto principale = std::find_if(ordine.begin(), ordine.end(), [](const QWidget *w) {
        const auto *bottone = qobject_cast<const Button *>(w);
        return bottone != nullptr && bottone->ruolo() == Ruolo::Principale;
    });
    return principale != ordine.end() ? *principale : ordine.front();
}

} // namespace zuvora
