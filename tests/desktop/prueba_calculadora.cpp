#include "desktop/calculadora.h"
#include "desktop/ventanas/frmcalc.h"
#include "testkit/manos.h"

#include <QClipboard>
#include <QPointer>

#include <map>

namespace tarvo {
namespace {

// Keys as on the window, plus "s" for the sign, "p" for the decimal point, "<" to cut, "C" to clear all.
QString Tras(const char *teclas, const QString &sDecimal = u","_qs) {
    static const std::map<char, void (Calculadora::*)()> ordenes{{'=', &Calculadora::Igual},
                                                                 {'s', &Calculadora::MasMenos},
                                                                 {'<', &Calculadora::CortarUltimo},
                                                                 {'c', &Calculadora::BorrarEntrada},
                                                                 {'C', &Calculadora::Borrar}};
    Calculadora calculo(sDecimal);
    for (const char *t = teclas; *t != 0; ++t) {
        const qsizetype operador = QByteArrayView("+-*/").indexOf(*t);
        if (*t >= '0' && *t <= '9')
            calculo.Digito(*t - '0');
        else if (operador >= 0)
            calculo.Operar(Calculadora::Operador(operador + 1));
        else if (*t == 'p')
            calculo.Decimal();
        else
            (calculo.*ordenes.at(*t))();
    }
    return calculo.Display();
}

TEST(Calculadora, DisplayAfterKeys) {
    const std::vector<std::pair<const char *, const char *>> casos{
        {"1+2+", "3"},
        {"1+2+4=", "7"},
        {"9-12=", "-3"},
        {"6*7=", "42"},
        {"8=5", "5"},        // a digit after a result starts anew
        {"2*3==", "6"},      // nothing is pending the second time
        {"5/0=", ""},        // and the division still waits for its divisor...
        {"5/0=2=", "0"},     // ...with the accumulator at 0
        {"5/0*", ""},        // an operator takes its place
        {"s=", "0"},         // "-" alone
        {"s4=", "-4"},       // a sign before the number
        {"8=s5", "5"},       // a result with changed sign gives way to the next digit
        {"8=s+1=", "-7"},    // and counts with its sign
        {"4p5+p5=", "5"},    // both decimals with the comma
        {"1p5p", "1,5,"},    // a second comma can be typed...
        {"1p5p5=", "1,5,5"}, // ...and is no number
        {"7+1pp5=", "8,5"},  // a point behind a point is none
        {"12<<<3", "03"},    // the last digit gives way to a 0
        {"12s<<", "0"},      // a sign goes with it
        {"7+3c4=", "11"},    // only the entry
        {"7+3C4=", "4"},     // everything
        {"1/3=", "0,333333333333333"},
        {"1000000*1000000*1000000=", "1E+18"},
        {"1000000*1000000*1000000=+0=", "1E+18"}, // its own result is a number again
        {"0*5s=", "0"},                           // no minus before a zero
        {"1p1*1p1=", "1,21"},
        {"1/100000=", "0,00001"},
        {"1/300000=", "3,33333333333333E-06"},
    };
    for (const auto &[teclas, display] : casos)
        EXPECT_EQ(Tras(teclas), QString::fromUtf8(display)) << teclas;
}

TEST(Calculadora, OtherSeparators) {
    EXPECT_EQ(Tras("1p5+1p5=", u"."_qs), u"3");
    EXPECT_EQ(Tras("3/2=p", u"."_qs), u"1.5"); // refused: it holds a point
    EXPECT_EQ(Tras("3/2=", u"·"_qs), u"1,5");
}

TEST(Calculadora, WhatIsNoNumberChangesNothing) {
    for (const QString &texto : {QString(400, u'9'), u"1.5"_qs, u"doce"_qs, u"1 2"_qs, u"$ 5"_qs}) {
        Calculadora calculo(u","_qs);
        calculo.Digito(4);
        calculo.Operar(Calculadora::Sumar);
        calculo.PonerDisplay(texto);
        calculo.Igual();
        EXPECT_EQ(calculo.Display(), texto);
        calculo.PonerDisplay(u"1"_qs);
        calculo.Igual();
        EXPECT_EQ(calculo.Display(), u"5"); // the sum was still pending
    }
}

class PruebaFrmCalc : public ::testing::Test {
  protected:
    QWidget principal;
    QPointer<FrmCalc> frm;
    void SetUp() override {
        principal.setGeometry(100, 50, 800, 600);
        principal.show();
        frm = new FrmCalc(u","_qs, &principal);
        frm->setAttribute(Qt::WA_DeleteOnClose);
        MostrarVentana(*frm);
    }
    QString Display() { return Control<QLineEdit>(*frm, "txtDisplay")->text(); }
};

TEST_F(PruebaFrmCalc, TakesKeysWhateverHasTheFocus) {
    for (const char *control : {"txtDisplay", "cmdNumero(7)", "cmdCopiar"}) {
        Pulsar(Control<QWidget>(*frm, "cmdClear"));
        Teclear(Control<QWidget>(*frm, control), u"12x3w;"_qs);
        EXPECT_EQ(Display(), u"3");
        EXPECT_EQ(ConFoco(), u"cmdEquals");
        Tecla(Control<QWidget>(*frm, control), Qt::Key_Return);
        EXPECT_EQ(Display(), u"36");
    }
}

TEST_F(PruebaFrmCalc, CutsWhenTheKeyIsLetGo) {
    auto *const display = Control<QLineEdit>(*frm, "txtDisplay");
    Teclear(display, u"345"_qs);
    for (int repeticion = 0; repeticion < 3; ++repeticion) // held down
        QTest::keyPress(display, Qt::Key_Backspace);
    EXPECT_EQ(Display(), u"345");
    QTest::keyRelease(display, Qt::Key_Backspace);
    EXPECT_EQ(Display(), u"34");
    Tecla(display, Qt::Key_Delete);
    EXPECT_EQ(Display(), u"3");
}

TEST_F(PruebaFrmCalc, CopiesAndTakesAPaste) {
    auto *const display = Control<QLineEdit>(*frm, "txtDisplay");
    QApplication::clipboard()->setText(u"12,5"_qs);
    display->setFocus();
    display->paste();
    Teclear(display, u"*2="_qs);
    Pulsar(Control<QWidget>(*frm, "cmdCopiar"));
    EXPECT_EQ(QApplication::clipboard()->text(), u"25");
    for (const QString &pegado : {u"40"_qs, u"doce"_qs}) { // the focus is on "=" now
        QApplication::clipboard()->setText(pegado);
        Tecla(Control<QWidget>(*frm, "cmdEquals"), Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(Display(), u"40");
    }
    Teclear(display, u"+4="_qs);
    QApplication::clipboard()->setText(u"440"_qs);
    display->selectAll();
    display->paste();
    EXPECT_EQ(Display(), u"440");
}

TEST_F(PruebaFrmCalc, StandsAtTheRightEdgeAndClosesByF5) {
    EXPECT_EQ(frm->geometry().right(), principal.geometry().right());
    Tecla(Control<QWidget>(*frm, "cmdNumero(1)"), Qt::Key_F5);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(frm.isNull());
}

} // namespace
} // namespace tarvo
