#include "desktop/ventanas/solocaracteres.h"
#include "testkit/manos.h"

#include <QClipboard>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QSignalSpy>
#include <QToolTip>

#include <gtest/gtest.h>

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
    EXPECT_TRUE(QToolTip::isVisible());
    EXPECT_TRUE(QToolTip::text().contains(u"este campo sólo admite cifras, «.», «,»"))
        << qPrintable(QToolTip::text());

    campo.setText(u"12;5"_qs);
    campo.selectAll();
    Pegar(u"12;50"_qs);
    EXPECT_EQ(campo.text(), u"12;5") << "what it has in common with the old text is pasted all the same";

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

} // namespace
} // namespace tarvo
