#include "shell/host/Schermata.h"

#include "shell/host/Dialoghi.h"
#include "shell/host/MsgForm.h"
#include "shell/store/EngineError.h"

#include <new>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {

void Schermata::avvisa(const QString &riga0, const QString &riga1) {
    mostraMessaggio(m_ambiente, &m_finestra, riga0, riga1);
}

bool Schermata::conferma(const QString &riga0, const QString &riga1) {
    return chiediConferma(m_ambiente, &m_finestra, riga0, riga1);
}

void Schermata::segnalaErrore() {
    QString testo;
    try {
        throw;
    } catch (const EngineError &e) {
        testo = testoErrore(e);
    } catch (const std::bad_alloc &) {
        testo = u"Memoria insufficiente: l'operazione non è stata eseguita."_s;
    } catch (const std::exception &e) {
        testo = u"L'operazione non è stata completata.\n\n(%1)"_s.arg(QString::fromUtf8(e.what()));
    }
    m_ambiente.dialoghi.messaggio(&m_finestra, Dialoghi::Icona::Critica, titoloMessaggi(), testo);
}

} // namespace zuvora
