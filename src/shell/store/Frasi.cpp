#include "shell/store/Frasi.h"

#include <QDir>
#include <QFileInfo>
#include <QStringView>
#include <algorithm>
#include <array>

namespace zuvora {

namespace {

struct Frase {
    Errore numero;
    QStringView testo; // %1 file name, %2 folder, %3 what was not done, %4 the object concerned
};

constexpr std::array frasi{
    Frase{Errore::FileNonTrovato,
          u"Il database «%1» non è stato trovato nella cartella «%2». %3 Controllare l'installazione."},
    Frase{Errore::PercorsoNonValido, u"La cartella «%2» del database «%1» non esiste o non è raggiungibile. %3 "
                                     u"Controllare il percorso e il collegamento di rete."},
    Frase{Errore::PercorsoFile, u"Nella cartella «%2» c'è già un file «%1». %3"},
    Frase{Errore::NonDatabase, u"Il file «%1» nella cartella «%2» non è un database valido. %3 Il file non è stato "
                               u"toccato: ripristinarlo da una copia di sicurezza."},
    Frase{Errore::FileDanneggiato, u"Il database «%1» nella cartella «%2» è danneggiato. %3 Ripristinarlo da una copia "
                                   u"di sicurezza."},
    Frase{Errore::Accesso, u"Non è permesso aprire il database «%1» nella cartella «%2». %3 Controllare i permessi del "
                           u"file e della cartella."},
    Frase{Errore::GiaAperto, u"Il database «%1» nella cartella «%2» è usato in modo esclusivo da un altro programma. "
                             u"%3 Chiudere l'altro programma o attendere, poi riprovare."},
    Frase{Errore::Bloccato, u"Il database «%1» nella cartella «%2» è bloccato da un altro programma. %3 Attendere "
                            u"qualche istante e riprovare."},
    Frase{Errore::DiscoPieno, u"Non c'è più spazio sul disco per il database «%1» nella cartella «%2». %3 Liberare "
                              u"spazio e riprovare."},
    Frase{Errore::DiscoRete, u"Errore del disco o della rete nell'uso del database «%1» nella cartella «%2». %3 "
                             u"Controllare il disco e il collegamento di rete, poi riprovare."},
    Frase{Errore::SolaLettura, u"Il database «%1» nella cartella «%2» è in sola lettura. %3 Togliere la protezione dal "
                               u"file e dalla cartella, poi riprovare."},
    Frase{Errore::TabellaNonTrovata,
          u"Nel database «%1» manca la tabella «%4». %3 Controllare l'installazione o aggiornare il database."},
    Frase{Errore::ColonnaNonTrovata,
          u"Nel database «%1» manca la colonna «%4». %3 Controllare l'installazione o aggiornare il database."},
    Frase{Errore::ColonnaGiaPresente, u"Nel database «%1» la colonna «%4» esiste già. %3"},
    Frase{Errore::NessunRecord,
          u"Nel database «%1» il record richiesto («%4») non c'è, o è stato eliminato da un altro "
          u"programma. %3 Aprire di nuovo la finestra; se si ripete, controllare l'installazione."},
    Frase{Errore::ModificaNonIniziata, u"Nessuna modifica è in corso sul database «%1». %3"},
    Frase{Errore::Sintassi, u"La richiesta al database «%1» non è scritta correttamente. %3 Controllare il testo "
                            u"inserito."},
    Frase{Errore::SelezioneInEsecuzione, u"La richiesta al database «%1» legge soltanto: non può essere eseguita come "
                                         u"comando. %3"},
    Frase{Errore::TipoNonValido,
          u"Il valore inserito non è adatto alla colonna «%4» del database «%1». %3 Correggere il valore e riprovare."},
    Frase{Errore::Altro, u"Operazione non riuscita sul database «%1» nella cartella «%2». %3 Riprovare; se si ripete, "
                         u"controllare il database."},
};

// Places by their own number: QString::arg would count only those that the sentence uses.
QString riempi(QStringView frase, const std::array<QString, 4> &posti) {
    QString testo;
    for (qsizetype i = 0; i < frase.size(); ++i) {
        if (frase[i] == u'%')
            testo += posti.at(static_cast<size_t>(frase[++i].digitValue() - 1));
        else
            testo += frase[i];
    }
    return testo;
}

QString nonFatto(Azione azione) {
    switch (azione) {
    case Azione::Apertura:
        return QStringLiteral("Il database non è stato aperto.");
    case Azione::Lettura:
        return QStringLiteral("I dati non sono stati letti.");
    case Azione::Scrittura:
        break;
    }
    return QStringLiteral("La modifica non è stata salvata.");
}

} // namespace

EngineError errore(Errore numero, const Contesto &contesto, const QString &dettaglio) {
    const auto *frase = std::ranges::find(frasi, numero, &Frase::numero);
    if (frase == frasi.end())
        frase = frasi.end() - 1;
    const bool senzaNome = contesto.percorso.isEmpty();
    const QFileInfo file(senzaNome ? QStringLiteral(".") : contesto.percorso);
    const QString nome = senzaNome ? QStringLiteral("senza nome") : accorciato(file.fileName());
    const QString cartella = accorciato(QDir::toNativeSeparators(file.absolutePath()));
    return {numero, riempi(frase->testo, {nome, cartella, nonFatto(contesto.azione), accorciato(contesto.oggetto)}),
            accorciato(dettaglio, 400)};
}

} // namespace zuvora
