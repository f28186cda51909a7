#pragma once

#include "kit/Aspetta.h"
#include "kit/Guida.h"
#include "kit/InstallazioneProva.h"
#include "shell/host/Pagina.h"

#include <QAbstractButton>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

namespace zuvora {

using namespace Qt::Literals::StringLiterals;

// Clicks a button where the user would.
inline void clic(QWidget &radice, const char *bottone) {
    QTest::mouseClick(&trova<QAbstractButton>(radice, bottone), Qt::LeftButton);
}
// Clicks a button and gives what the message form said, both lines; `risposta` is the button that answers.
inline QString premi(QWidget &radice, const char *bottone, int risposta = 0) {
    QString righe;
    Guida guida;
    guida.messaggio(&righe, risposta);
    clic(radice, bottone);
    return righe;
}
inline QString scritto(QWidget &form, const char *nome) {
    return trova<QLabel>(form, nome).text();
}
// In the place of all that the field holds.
inline void digita(QWidget &form, const char *nome, const QString &testo) {
    auto &campo = trova<QLineEdit>(form, nome);
    QTest::mouseClick(&campo, Qt::LeftButton);
    QTest::keyClick(&campo, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&campo, Qt::Key_Delete);
    QTest::keyClicks(&campo, testo);
}

// A folder of its own for what the program writes into the current one.
struct CartellaCorrente {
    CartellaCorrente() { QDir::setCurrent(cartella.path()); }
    ~CartellaCorrente() { QDir::setCurrent(m_prima); }
    CartellaCorrente(const CartellaCorrente &) = delete;
    CartellaCorrente &operator=(const CartellaCorrente &) = delete;
    QTemporaryDir cartella;

private:
    QString m_prima = QDir::currentPath();
};

template <class P> struct PaginaAperta : QWidget {
    explicit PaginaAperta(InstallazioneProva &i) : apertura{i.ambiente, this, 3, false, {}}, pagina(apertura) {
        resize(600, 420);
        pagina.apri();
        show();
    }
    Apertura apertura;
    P pagina;
};
template <class F, class... A> std::unique_ptr<F> apriForm(A &&...argomenti) {
    auto form = std::make_unique<F>(std::forward<A>(argomenti)...);
    form->show();
    return form;
}

struct Stanza : testing::Test {
    Stanza() { i.piattaforma.cartella = QStringLiteral(CARTELLA_COMPONENTI); }
    void scrivi(const QString &nome, const QByteArray &contenuto) const {
        QFile file(QDir(i.cartella()).filePath(nome));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(contenuto);
    }
    QByteArray leggi(const QString &nome) const {
        QFile file(QDir(i.cartella()).filePath(nome));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(manca)");
    }
    // Clicks a button that deletes: a first question is refused and nothing goes. Gives what is said after the second.
    QString cancella(QWidget &radice, const char *bottone) {
        const QByteArray prima = i.contenuto();
        EXPECT_EQ(premi(radice, bottone, 0), u"Cancello voce selezionata ?"_s);
        EXPECT_EQ(i.contenuto(), prima);
        QString fine;
        guida.messaggio(nullptr, 1).messaggio(&fine);
        clic(radice, bottone);
        return fine;
    }
    QVariant riga(const QString &colonna) const { return i.valore(u"SELECT "_s + colonna + u" FROM Configurazione"_s); }
    InstallazioneProva i;
    Guida guida;
};

} // namespace zuvora
