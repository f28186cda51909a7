#pragma once

#include "shell/host/Voce.h"

#include <QByteArray>
#include <QStringList>

namespace zuvora {

// The speech engine. It is one for the process and remembers its voice: calls from several threads take turns.

// Samples a second; 0 when the engine or its data are not installed.
int frequenzaVoce();
// The text as 16 bit samples of one channel; empty when the voice isn't installed.
QByteArray sintetizza(const QString &testo, std::optional<Timbro> timbro);

// A long text in pieces that are synthesized one by one, cut where a sentence ends or else between words.
QStringList pezziDaDire(const QString &testo);

} // namespace zuvora
