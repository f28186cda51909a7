#pragma once

#include "shell/host/Ambiente.h"

#include <QHash>
#include <QObject>

class QWidget;

namespace zuvora {

// F1 anywhere in the program opens the guide's chapter on the window or page that has the focus. Watches the whole
// application, so that windows of components have it too.
class AiutoF1 : public QObject {
public:
    explicit AiutoF1(const Ambiente &ambiente) : m_ambiente(ambiente) {}

    // The chapter's page for a widget: that of the nearest window or page around it that the guide knows, else the
    // guide's first page.
    QString capitolo(const QWidget &widget) const;

    bool eventFilter(QObject *oggetto, QEvent *evento) override;

private:
    void apri(QWidget &widget);
    QString cartella() const;

    Ambiente m_ambiente;
};

} // namespace zuvora
