#pragma once

#include "shell/host/Browser.h"
#include "shell/host/Form.h"

#include <QUrl>

namespace zuvora {

// Shows one page of the web.
class P1 : public Form {
public:
    // `sito`: the page that films of YouTube are told they are shown on.
    P1(const Ambiente &ambiente, const QString &indirizzo, const QUrl &sito, QWidget *padre);

private:
    Browser wb1{this, "wb1", {240, 120, 9915, 6360}, ambiente().piattaforma};
    Button ok{this, "ok", "Ok", {9180, 6600, 975, 330}};
};

} // namespace zuvora
