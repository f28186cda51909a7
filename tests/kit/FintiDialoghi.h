#pragma once

#include "shell/host/Dialoghi.h"

#include <deque>
#include <gtest/gtest.h>
#include <vector>

namespace zuvora {

// Dialogs that answer from queues. A test fails when a dialog comes without an answer, when an answer is left over, and
// when a message box came that the test did not take.
class FintiDialoghi : public Dialoghi {
public:
    struct Box {
        Icona icona;
        QString titolo;
        QString testo;
    };
    std::deque<std::optional<QString>> file;
    std::deque<std::optional<QString>> cartelle;
    std::deque<std::optional<FontScelto>> font;
    std::deque<std::optional<int>> colori;
    std::deque<int> scelte;                   // index of the button that answers
    std::vector<RichiestaFile> richiesteFile; // as they came
    QStringList primeCartelle;
    QStringList domande;                 // the questions asked
    std::optional<FontScelto> primoFont; // of the last request

    ~FintiDialoghi() override {
        EXPECT_TRUE(file.empty() && cartelle.empty() && font.empty() && colori.empty() && scelte.empty())
            << "answers left over";
        for (const Box &box : m_box)
            ADD_FAILURE() << "unexpected message: " << box.testo.toStdString();
    }
    // The message boxes shown since the last call.
    std::vector<Box> prendiBox() { return std::exchange(m_box, {}); }
    // Text of the only message box; a test failure when there are none or several.
    QString unicoMessaggio() {
        const auto box = prendiBox();
        EXPECT_EQ(box.size(), 1U);
        return box.empty() ? QString() : box.front().testo;
    }

    void messaggio(QWidget *, Icona icona, const QString &titolo, const QString &testo) override {
        m_box.push_back({icona, titolo, testo});
    }
    int scegli(QWidget *, const Scelta &scelta) override {
        domande << scelta.testo;
        return prossima(scelte, scelta.sicuro);
    }
    std::optional<QString> salvaFile(QWidget *padre, const RichiestaFile &richiesta) override {
        return apriFile(padre, richiesta);
    }
    std::optional<QString> apriFile(QWidget *, const RichiestaFile &richiesta) override {
        richiesteFile.push_back(richiesta);
        return prossima(file);
    }
    std::optional<QString> scegliCartella(QWidget *, const QString &, const QString &prima) override {
        primeCartelle << prima;
        return prossima(cartelle);
    }
    std::optional<FontScelto> scegliFont(QWidget *, const std::optional<FontScelto> &primo) override {
        primoFont = primo;
        return prossima(font);
    }
    std::optional<int> scegliColore(QWidget *, int) override { return prossima(colori); }

private:
    template <class T> T prossima(std::deque<T> &coda, T risposta = {}) {
        if (coda.empty()) {
            ADD_FAILURE() << "a dialog came without an answer";
        } else {
            risposta = std::move(coda.front());
            coda.pop_front();
        }
        return risposta;
    }
    std::vector<Box> m_box;
};

} // namespace zuvora
