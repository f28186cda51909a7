#pragma once

#include "shell/host/Spunta.h"
#include "shell/host/Testo.h"
#include "shell/host/Twips.h"

#include <QString>
#include <QWidget>

namespace zuvora {

// A control that shows a text which must never be cut.
class ConDidascalia {
public:
    virtual ~ConDidascalia() = default;
    virtual QString didascaliaMostrata() const = 0;
    virtual QSize spazioDidascalia() const = 0; // pixels
    virtual bool vaACapo() const { return false; }
};

// What all controls share: a name (objectName, with the index of a control array) and a place in twips, kept as given.
template <class W> class Controllo : public W {
public:
    template <class... A>
    Controllo(QWidget *padre, const char *nome, const Posto &posto, A &&...resto)
        : W(std::forward<A>(resto)..., padre) {
        this->setObjectName(QString::fromUtf8(nome));
        setPosto(posto);
    }

    const Posto &posto() const { return m_posto; }
    void setPosto(const Posto &p) {
        m_posto = p;
        this->setGeometry(pixelDa(p));
    }
    int Left() const { return m_posto.left; }
    int Top() const { return m_posto.top; }
    void setLeft(int twips) { setPosto({twips, m_posto.top, m_posto.width, m_posto.height}); }
    void setTop(int twips) { setPosto({m_posto.left, twips, m_posto.width, m_posto.height}); }
    void sposta(int left, int top) { setPosto({left, top, m_posto.width, m_posto.height}); }
    bool Visible() const { return !this->isHidden(); }
    void spunta() { mostraSpunta(*this); }

private:
    Posto m_posto;
};

} // namespace zuvora
