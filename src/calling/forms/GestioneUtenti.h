#pragma once

#include "shell/host/Form.h"

#include <functional>

namespace zuvora {

// Name and state of one service.
class GestioneUtenti : public Form {
public:
    // `salva` writes both on the row that was opened.
    using Salva = std::function<void(const QString &nome, bool attivo)>;
    GestioneUtenti(const Ambiente &ambiente, const QString &nome, bool attivo, Salva salva, QWidget *padre);
    bool salvato() const { return m_salvato; }

private:
    void registra();

    Salva m_salva;
    bool m_salvato = false;
    GroupBox GroupBox1{this, "GroupBox1", "Aggiunge / Modifica", {120, 240, 7335, 2055}};
    Label Label1{&GroupBox1, "Label1", "Servizio", {240, 570, 2055, 255}};
    Edit text1_0{&GroupBox1, "text1(0)", {240, 840, 6855, 285}};
    CheckBox SA{&GroupBox1, "SA", "Servizio attivo", {3240, 1320, 2055, 255}};
    Button CBT_1{this, "CBT(1)", "&Conferma", {4560, 2640, 855, 330}};
    Button ctButton2_0{this, "ctButton2(0)", "C&hiudi", {5400, 2640, 855, 330}};
};

} // namespace zuvora
