#include "desktop/ventanas/girador.h"
#include "desktop/ventanas/solocaracteres.h"
#include "testkit/manos.h"

#include <QClipboard>
#include <QInputMethodEvent>
#include <QToolTip>

namespace tarvo {
namespace {

struct SoloCaracteresPrueba : testing::Test {
    QLineEdit campo;

    SoloCaracteresPrueba() {
        SoloCaracteres(&campo, u"0123456789.,"_qs);
        MostrarVentana(campo);
    }
    void Pegar(const QString &texto) {
        QApplication::clipboard()->setText(texto);
        Tecla(&campo, Qt::Key_V, Qt::ControlModifier);
    }
};

TEST_F(SoloCaracteresPrueba, TheRuleIsOneForKeysAndLeavesWhatNobodyTouched) {
    const char *const casos[][3] = {
        {"-2", "5", "-25"}, {"10;5", "\b7", "10;7"}, {"$ 1 a", "x-2,", "$ 1 a2,"}, {"", "a1b2 3", "123"}};
    for (const auto &[antes, teclas, despues] : casos) {
        campo.setText(QString::fromUtf8(antes));
        EXPECT_EQ(campo.text(), QString::fromUtf8(antes)) << "the program's own text stays";
        for (const char *tecla = teclas; *tecla != '\0'; ++tecla)
            *tecla == '\b' ? Tecla(&campo, Qt::Key_Backspace) : QTest::keyClick(&campo, *tecla);
        EXPECT_EQ(campo.text(), QString::fromUtf8(despues)) << antes;
    }
    EXPECT_FALSE(QToolTip::isVisible());
}

TEST_F(SoloCaracteresPrueba, AStrangeTextIsRefusedWholeAndSaysWhy) {
    campo.setText(u"-1234"_qs);
    campo.setSelection(2, 2);
    const QSignalSpy cambios(&campo, &QLineEdit::textChanged);
    Pegar(u"12 5"_qs);
    campo.paste(); // by its menu
    QInputMethodEvent compuesto;
    compuesto.setCommitString(u"é"_qs);
    QApplication::sendEvent(&campo, &compuesto);
    EXPECT_EQ(campo.text(), u"-1234");
    EXPECT_EQ(cambios.size(), 0) << "nobody is told of what was never there";
    EXPECT_TRUE(QTest::qWaitFor([] { return QToolTip::isVisible(); }));
    EXPECT_TRUE(QToolTip::text().contains(u"este campo sólo admite cifras, «.», «,»"))
        << qPrintable(QToolTip::text());

    campo.setText(u"-1234"_qs);
    campo.setSelection(2, 2);
    Pegar(u"9,9"_qs);
    EXPECT_EQ(campo.text(), u"-19,94");
    campo.selectAll();
    Pegar(u"7"_qs);
    Pegar(u"x"_qs);
    EXPECT_EQ(campo.text(), u"7");
    campo.undo();
    EXPECT_TRUE(campo.text().startsWith(u'-')) << "undoing brings anything back";
    Pegar(u"x"_qs);
    EXPECT_FALSE(campo.text().contains(u'x'));
}

struct GiradorPrueba : testing::Test {
    QWidget ventana;
    QLineEdit campo{&ventana};
    QLineEdit otro{&ventana};
    Girador girador{&ventana};

    GiradorPrueba() {
        girador.Acompanar(&campo, 1, 30);
        girador.setGeometry(100, 0, 16, 20);
        otro.move(0, 50);
        MostrarVentana(ventana);
    }
};

TEST_F(GiradorPrueba, CountsUnlessTheNumberIsJustAtItsLimit) {
    const std::tuple<QString, QString, QString, int> casos[] = {
        {u"7"_qs, u"8"_qs, u"6"_qs, -7},     {u"29"_qs, u"30"_qs, u"28"_qs, -29},
        {u"30"_qs, u"30"_qs, u"29"_qs, -30}, {u"45"_qs, u"46"_qs, u"44"_qs, -30},
        {u"1"_qs, u"2"_qs, u"1"_qs, -1},     {u""_qs, u"1"_qs, u""_qs, -1},
        {u"10,5"_qs, u"11"_qs, u"9"_qs, -10}};
    for (const auto &[antes, arriba, abajo, posicion] : casos) {
        for (const bool sube : {true, false}) {
            campo.setText(antes);
            EXPECT_EQ(girador.value(), posicion);
            EXPECT_EQ(campo.text(), antes) << "typed text isn't written over";
            QTest::mouseClick(&girador, Qt::LeftButton, {}, QPoint(8, sube ? 3 : 17));
            EXPECT_EQ(campo.text(), sube ? arriba : abajo) << antes.toStdString();
        }
    }
    girador.setValue(-12);
    EXPECT_EQ(campo.text(), u"12");
}

TEST_F(GiradorPrueba, FollowsTheFieldsStateAndIsWheeledOnlyWhileItIsEdited) {
    campo.setText(u"7"_qs);
    otro.setFocus();
    Rueda(&girador);
    EXPECT_EQ(campo.text(), u"7");
    campo.setFocus();
    Rueda(&girador);
    EXPECT_EQ(campo.text(), u"6");
    campo.setEnabled(false);
    EXPECT_FALSE(girador.isEnabled());
    campo.setEnabled(true);
    EXPECT_TRUE(girador.isEnabled());
}

} // namespace
} // namespace tarvo
