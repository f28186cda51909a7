// Form2, the toolbox's commands and what the canvas opens.
#include "designer/TelaProva.h"

#include "designer/forms/Form2.h"

#include <QLineEdit>

using namespace zuvora;
using namespace Qt::Literals::StringLiterals;

namespace {

QString spenti(QWidget &form) {
    QStringList esito;
    const auto figli = trova<QWidget>(form, "box1").findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    for (const QWidget *w : figli)
        if (!w->isEnabled())
            esito << w->objectName();
    esito.sort();
    return esito.join(u' ');
}

// Element to click, heading, height in pixels, what is disabled.
TEST(Pagine, SiIntestanoSiLimitanoESiApplicano) {
    const QString testo = u"Label2(6) Testo999"_s;
    const QString ticker = u"CB2 Label2(3) Label2(6) RB1(0) RB1(1) RB1(2) Testo999"_s;
    const QString colore = u"CB2 CP2 Label2(0) Label2(1) Label2(2) Label2(3) Label2(6) PB1(0) RB1(0) RB1(1) RB1(2) "
                           "Testo999"_s;
    const std::tuple<const char *, QString, int, QString> pagine[] = {
        {"Text1(9)", u"Numeri"_s, 286, testo},       {"Text1(10)", u"Postazione"_s, 286, testo},
        {"Text1(11)", u"Servizio"_s, 286, testo},    {"Text9(0)", u"Titolo"_s, 329, {}},
        {"Text9(1)", u"SottoTitolo"_s, 329, {}},     {"Text9(2)", u"Data"_s, 329, testo},
        {"Text9(3)", u"Orario"_s, 329, testo},       {"Text2", u"Testo Scorrevole"_s, 286, ticker},
        {"Pannello1(3)", u"Pannello"_s, 286, colore}};
    TelaProva tela;
    const QByteArray archivio = tela.installazione.contenuto();
    const auto guarda = [&](const QString &titolo, int altezza, const QString &disabilitati) {
        return [&tela, titolo, altezza, disabilitati](QWidget &form2) {
            EXPECT_EQ(trova<Label>(form2, "Label1").Caption(), titolo);
            EXPECT_EQ(form2.height(), altezza);
            EXPECT_EQ(spenti(form2), disabilitati);
            tela.installazione.dialoghi.colori = {0x123456};
            clicca(form2, "CP1");
            clicca(form2, "Btn(0)");
            clicca(form2, "Btn(1)");
        };
    };
    for (const auto &[elemento, titolo, altezza, disabilitati] : pagine) {
        Guida guida;
        guida.quando("Form2", guarda(titolo, altezza, disabilitati));
        QTest::mouseClick(&tela.w(elemento), Qt::RightButton, {}, QPoint(12, 12));
        EXPECT_TRUE(guida.finita());
        EXPECT_EQ(tela.e(elemento).coloreSfondo, 0x123456) << elemento;
    }
    Guida guida;
    guida.quando("Form2", guarda(u"Colore Sfondo Schermata"_s, 286, colore));
    clicca(*tela.form, "Btn(7)");
    EXPECT_EQ(tela.layout.tela().coloreSfondo, 0x123456);
    EXPECT_EQ(tela.installazione.contenuto(), archivio); // nothing is stored
}

TEST(Pagine, MostranoLElementoECioCheSiSceglie) {
    TelaProva tela;
    LayoutElement &e = tela.e("Text9(1)");
    e.font = {u"Tahoma"_s, 24.5, false, true};
    e.coloreSfondo = 0x0000FF;
    e.coloreTesto = 0xFF0000;
    e.allineamento = Allineamento::Destra;
    e.trasparente = false;
    tela.installazione.dialoghi.colori = {0x00FF00, 0x112233};
    tela.installazione.dialoghi.font = {FontScelto{u"Arial"_s, 27.75, true, true}};
    Guida guida;
    guida.quando("Form2", [](QWidget &form2) {
        const auto segnato = [&](const char *nome) { return trova<QAbstractButton>(form2, nome).isChecked(); };
        auto &testo = trova<QLineEdit>(form2, "Testo999");
        EXPECT_EQ(trova<QLineEdit>(form2, "FE1(0)").text() + trova<QLineEdit>(form2, "FE1(1)").text(), u"Tahoma24.5"_s);
        EXPECT_TRUE(!segnato("CB1(0)") && segnato("CB1(1)") && !segnato("CB2") && segnato("RB1(2)"));
        EXPECT_EQ(trova<ColorPicker>(form2, "CP1").Colore(), 0x0000FF);
        EXPECT_EQ(trova<ColorPicker>(form2, "CP2").Colore(), 0xFF0000);
        for (const char *bottone : {"CP1", "CP2", "PB1(0)", "RB1(1)", "CB2"})
            clicca(form2, bottone);
        EXPECT_EQ(trova<QLineEdit>(form2, "FE1(2)").text(), QString::number(0x00FF00));
        testo.setText(QString(60, u'x'));
        testo.setFocus();
        QTest::keyClick(&testo, Qt::Key_Return); // applies, and the form stays
        EXPECT_TRUE(conSpunta(trova<Button>(form2, "Btn(0)")));
        testo.setText(u"non applicato"_s);
        clicca(form2, "Btn(1)");
    });
    QTest::mouseClick(&tela.w("Text9(1)"), Qt::RightButton);
    EXPECT_EQ(e.font, (Carattere{u"Arial"_s, 27.75, true, true}));
    EXPECT_EQ(e.coloreTesto, 0x112233);
    EXPECT_EQ(e.allineamento, Allineamento::Centro);
    EXPECT_TRUE(e.trasparente);
    EXPECT_EQ(e.didascalia, QString(50, u'x'));
}

// Watches a control for the moment in which it is disabled: a second click then finds nobody.
class Spia : public QObject {
public:
    explicit Spia(QWidget &w) : m_w(w) { w.installEventFilter(this); }
    int lampi = 0;
    bool eventFilter(QObject *, QEvent *e) override {
        if (e->type() != QEvent::EnabledChange || m_w.isEnabled())
            return false;
        ++lampi;
        QMouseEvent clic(QEvent::MouseButtonPress, QPointF(4, 4), m_w.mapToGlobal(QPointF(4, 4)), Qt::RightButton,
                         Qt::RightButton, {});
        QCoreApplication::sendEvent(&m_w, &clic);
        return false;
    }

private:
    QWidget &m_w;
};

TEST(Lampo, ChiApreUnaFinestraSiSpegneUnMomento) {
    int aperte = 0;
    ApritoriTela apritori;
    apritori.decorazione = [&](QWidget *, int indice) {
        aperte += indice;
        return std::nullopt;
    };
    TelaProva tela(u"Layout1"_s,
                   {u"UPDATE Layout1 SET Visibile=1, \"left\"=6000, \"top\"=2000 WHERE DescCampo='Image1(5)'"_s},
                   apritori);
    for (const auto &[elemento, lampi] :
         {std::pair("Text9(1)", 1), {"Text1(3)", 1}, {"Pannello1(1)", 0}, {"Image1(5)", 1}, {"WB1", 1}, {"MP1", 0}}) {
        Guida guida;
        if (elemento[0] == 'T' || elemento[0] == 'P')
            guida.premi("Form2", "Btn(1)");
        Spia spia(tela.w(elemento));
        QTest::mouseClick(&tela.w(elemento), Qt::RightButton, {}, QPoint(4, 4));
        EXPECT_EQ(spia.lampi, lampi) << elemento;
        EXPECT_TRUE(tela.w(elemento).isEnabled());
    }
    EXPECT_EQ(aperte, 5);
}

TEST(Comandi, PiazzanoNellAngoloCioCheManca) {
    TelaProva tela(u"Layout1"_s, {u"UPDATE Layout1 SET Visibile=0"_s});
    const std::pair<const char *, const char *> coppie[] = {
        {"Btn(0)", "Text2"},    {"Btn(2)", "Text9(0)"},    {"Btn(3)", "Text9(1)"}, {"Btn(4)", "Text9(2)"},
        {"Btn(5)", "Text9(3)"}, {"Btn(9)", "IM1"},         {"Btn(10)", "MP1"},     {"Btn(12)", "WB1"},
        {"Btn(22)", "YT"},      {"Btn(1)", "Pannello1(0)"}};
    for (const auto &[bottone, elemento] : coppie) {
        EXPECT_TRUE(tela.w(elemento).isHidden()) << elemento;
        clicca(*tela.form, bottone);
        EXPECT_FALSE(tela.w(elemento).isHidden()) << elemento;
        EXPECT_EQ(tela.rettangolo(elemento).topLeft(), QPoint()) << elemento;
        tela.e(elemento).area.left = 600;
    }
    clicca(*tela.form, "Btn(2)"); // visible: nothing happens
    EXPECT_EQ(tela.e("Text9(0)").area.left, 600);
    for (LayoutElement &e : tela.layout)
        e.visibile = true;
    for (const auto &[bottone, esauriti] : {std::pair("Btn(1)", u"Tutti  i Pannelli sono\nstati utilizzati !"_s),
                                            {"Btn(8)", u"Tutte le decorazioni sono\nstate utilizzate !"_s}}) {
        QString righe;
        Guida guida;
        guida.messaggio(&righe);
        clicca(*tela.form, bottone);
        EXPECT_EQ(righe, esauriti);
    }
}

TEST(Apritori, LaDecorazioneSceltaVaSullaTelaNelSuoPiano) {
    InstallazioneProva altra; // for the path of a picture that stays
    SceltaDecorazione scelta{altra.file(u"ZuvoraDecorazioni/Cornici/stondata.gif"_s), true};
    ApritoriTela apritori;
    apritori.decorazione = [&](QWidget *, int) { return std::optional(scelta); };
    TelaProva tela(u"Layout1"_s, {}, apritori);
    clicca(*tela.form, "Btn(8)");
    EXPECT_EQ(tela.e("Image1(1)").immagine, scelta.percorso);
    EXPECT_EQ(tela.layout.PianiDecorazione(1), u"dietro");
    tela.e("Image1(1)").area = tela.e("MP1").area;
    tela.form->setFocus();
    QTest::mouseClick(&tela.w("Image1(1)"), Qt::RightButton); // shows the new place too
    const QPoint centro = tela.rettangolo("MP1").center();
    EXPECT_EQ(tela.form->childAt(centro)->objectName(), u"MP1"_s);
    scelta.secondoPiano = false;
    QTest::mouseClick(&tela.w("Image1(1)"), Qt::RightButton);
    EXPECT_EQ(tela.form->childAt(centro)->objectName(), u"Image1(1)"_s);
    EXPECT_EQ(tela.form->childAt(tela.rettangolo("SSPanel1").topLeft() + QPoint(2, 2))->objectName(), u"Image2"_s);
    scelta.percorso = altra.file(u"nuova.png"_s);
    for (const Qt::GlobalColor colore : {Qt::red, Qt::blue}) { // the same file, drawn anew
        QImage figura(colore == Qt::red ? 8 : 9, 8, QImage::Format_RGB32);
        figura.fill(colore);
        ASSERT_TRUE(figura.save(scelta.percorso));
        QTest::mouseClick(&tela.w("Image1(1)"), Qt::RightButton);
        EXPECT_EQ(QColor(tela.vista()(centro)), QColor(colore));
    }
    scelta.percorso = altra.file(u"Zuvora.mdb"_s); // no picture
    QString righe;
    Guida guida;
    guida.messaggio(&righe);
    QTest::mouseClick(&tela.w("Image1(1)"), Qt::RightButton);
    EXPECT_FALSE(righe.isEmpty());
    EXPECT_NE(tela.e("Image1(1)").immagine, scelta.percorso);
}

TEST(Apritori, LoSfondoCambiaMentreLaSuaFinestraEAperta) {
    QImage prima;
    QImage durante;
    TelaProva *aperta = nullptr;
    ApritoriTela apritori;
    apritori.sfondo = [&](QWidget *padre, const UsoSfondo &uso) {
        EXPECT_FALSE(uso.imposta(aperta->installazione.archivio()));
        const QString stesso = aperta->installazione.file(u"nuovo.png"_s);
        for (const Qt::GlobalColor colore : {Qt::red, Qt::blue}) { // the same file, drawn anew
            QImage figura(8, 8, QImage::Format_RGB32);
            figura.fill(colore);
            ASSERT_TRUE(figura.save(stesso));
            EXPECT_TRUE(uso.imposta(stesso));
            EXPECT_EQ(QColor(aperta->vista()(QPoint(1915, 1075))), QColor(colore));
        }
        EXPECT_TRUE(uso.imposta(aperta->installazione.file(u"ZuvoraSfondiHD/FH_blu_4post_.jpg"_s)));
        durante = padre->grab().toImage();
        uso.elimina();
        EXPECT_EQ(aperta->layout.Label2(), QString());
        EXPECT_TRUE(uso.imposta(aperta->installazione.file(u"ZuvoraSfondiHD/FH_blu_4post_.jpg"_s)));
    };
    TelaProva tela(u"Layout1"_s, {}, apritori);
    aperta = &tela;
    prima = tela.form->grab().toImage();
    clicca(*tela.form, "Btn(6)");
    EXPECT_NE(durante, prima);
    EXPECT_TRUE(tela.layout.Label2().endsWith(u"FH_blu_4post_.jpg"_s));
    EXPECT_EQ(tela.form->grab().toImage(), durante);
}

TEST(AnteprimaTG, DaLaMisuraAlRiquadroERestaAperta) {
    TelaProva tela(u"Layout1"_s, {u"UPDATE Layout1 SET Visibile=1, \"left\"=300, \"top\"=450, Larghezza=3000, "
                                  "Altezza=3000 WHERE DescCampo='WB2'"_s});
    Guida guida;
    guida.quando("AnteprimaTGOnline", [&](QWidget &form) {
        auto &A1 = trova<QLineEdit>(form, "A1");
        EXPECT_EQ(A1.text(), u"3000"_s);
        for (const char *nome : {"Allarga", "Allarga", "Stringi", "Allarga", "Abbassa", "Abbassa", "Alza"}) {
            clicca(form, nome);
            EXPECT_TRUE(trova<QAbstractButton>(form, nome).autoRepeat()) << nome;
        }
        EXPECT_EQ(trova<QWidget>(form, "WB22").size(), QSize(213, 193));
        EXPECT_EQ(A1.text() + trova<QLineEdit>(form, "A2").text(), u"32002900"_s);
        EXPECT_EQ(tela.e("WB2").area.width, 3000);
        clicca(form, "Accetta");
        EXPECT_TRUE(form.isVisible());
        A1.setText(u"molto"_s);
        Guida rifiuto;
        QString righe;
        rifiuto.messaggio(&righe);
        clicca(form, "Accetta");
        EXPECT_TRUE(righe.contains(u"100 e 60000"_s)) << righe.toStdString();
        clicca(form, "Chiudi");
    });
    QTest::mouseClick(&tela.w("WB2"), Qt::RightButton);
    EXPECT_EQ(tela.e("WB2").area, (Area{300, 450, 3200, 2900}));
    EXPECT_EQ(tela.rettangolo("WB2"), rettangoloTela({300, 450, 3200, 2900}));
}

// What a button places pulses above the toolbox; nothing else changes.
TEST(Palpito, MostraCioCheStaSottoGliStrumentiENienteAltro) {
    TelaProva tela(u"Layout1"_s, {u"UPDATE Layout1 SET Visibile=0"_s,
                                  u"UPDATE Layout1 SET Visibile=1, \"left\"=600, \"top\"=600, Larghezza=1500, "
                                  "Altezza=1500 WHERE DescCampo='MP1'"_s});
    QWidget &palpito = tela.w("Palpito");
    EXPECT_TRUE(palpito.isHidden());
    const QWidget *fuoco = tela.form->focusWidget();
    for (const char *bottone : {"Btn(10)", "Btn(1)"}) { // already there, and new
        clicca(*tela.form, bottone);
        EXPECT_TRUE(palpito.isVisible()) << bottone;
    }
    EXPECT_EQ(palpito.geometry(), tela.rettangolo("Pannello1(0)"));
    clicca(*tela.form, "Btn(10)");
    EXPECT_EQ(tela.e("MP1").area, (Area{600, 600, 1500, 1500}));
    EXPECT_EQ(palpito.geometry(), QRect(40, 40, 100, 100));
    EXPECT_EQ(tela.form->ElementoSelezionato(), QString());
    EXPECT_EQ(tela.form->focusWidget(), fuoco);
    const QPoint sottoGliStrumenti(60, 60);
    EXPECT_TRUE(tela.w("SSPanel1").isAncestorOf(tela.form->childAt(sottoGliStrumenti)));
    const QRgb prima = TelaProva::Vista{tela.w("SSPanel1").grab().toImage()}(sottoGliStrumenti - QPoint(24, 24));
    EXPECT_TRUE(QTest::qWaitFor([&] { return tela.vista()(sottoGliStrumenti) != prima; }));
    EXPECT_TRUE(QTest::qWaitFor([&] { return palpito.isHidden(); }));
    EXPECT_EQ(tela.vista()(sottoGliStrumenti), prima);
}

TEST(Segni, IBottoniDiconoCheCosaSullaTelaCeGia) {
    TelaProva tela(u"Layout1"_s, {u"UPDATE Layout1 SET Visibile=0"_s});
    const auto segno = [&](const char *bottone) {
        QWidget &b = tela.w(bottone);
        auto *w = b.findChild<QWidget *>(u"Segno"_s);
        EXPECT_EQ(w->isVisible(), !b.accessibleDescription().isEmpty());
        return b.accessibleDescription();
    };
    EXPECT_EQ(segno("Btn(12)") + segno("Btn(1)"), QString());
    EXPECT_EQ(tela.w("Btn(12)").toolTip(), u" Meteo "_s);
    EXPECT_EQ(tela.w("Btn(12)").geometry(), QRect(120, 176, 49, 39));
    clicca(*tela.form, "Btn(12)");
    clicca(*tela.form, "Btn(1)");
    clicca(*tela.form, "Btn(1)");
    EXPECT_EQ(segno("Btn(12)"), u"Già sulla schermata"_s);
    EXPECT_EQ(segno("Btn(1)"), u"2 sulla schermata"_s);
    tela.form->setFocus();
    tela.clicca(QPoint(400, 420)); // a panel, beside the toolbox
    QTest::keyClick(tela.form.get(), Qt::Key_Delete);
    EXPECT_EQ(segno("Btn(1)"), u"1 sulla schermata"_s);
}

} // namespace
