#pragma once

#include "shell/host/Edit.h"

namespace zuvora {

// The box for an embed code: a typed a to z becomes its capital, what is pasted keeps its case, and what would go
// beyond the limit is left out.
class EditCodice : public EditMultilinea {
public:
    EditCodice(QWidget *padre, const char *nome, const Posto &posto, int massimo);

protected:
    void keyPressEvent(QKeyEvent *e) override;
    void inputMethodEvent(QInputMethodEvent *e) override;
    void insertFromMimeData(const QMimeData *dati) override;

private:
    int spazio() const; // characters that still have room
    int m_massimo;
};

} // namespace zuvora
