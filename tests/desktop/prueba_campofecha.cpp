// Dates and hours typed as they are written, over what stands there.
#include "desktop/ventanas/campofecha.h"
#include "desktop/ventanas/campohora.h"
#include "desktop/ventanas/filtrocampos.h"
#include "testkit/manos.h"

#include <QCalendarWidget>
#include <QVBoxLayout>

namespace tarvo {
namespace {

TEST(CampoFecha, TakesADateAsItIsWritten) {
    QWidget ventana;
    auto *const campo = new CampoFecha;
    auto *const otro = new QLineEdit;
    auto *const columna = new QVBoxLayout(&ventana);
    columna->addWidget(campo);
    columna->addWidget(otro);
    const FiltroCampos filtro(&ventana);
    MostrarVentana(ventana);
    const std::tuple<QDate, const char *, QDate> casos[] = {
        {{2026, 11, 23}, "31122026", {2026, 12, 31}},  {{2026, 2, 15}, "30012026", {2026, 1, 30}},
        {{2026, 2, 15}, "29022024", {2024, 2, 29}},    {{2026, 8, 1}, "15/11/2026", {2026, 11, 15}},
        {{2026, 12, 1}, "01/05/2025", {2025, 5, 1}},   {{2026, 8, 1}, "5/3/26", {2026, 3, 5}},
        {{2026, 8, 1}, "1-12-2027", {2027, 12, 1}},    {{2026, 2, 15}, "31", {2026, 2, 28}},
        {{2026, 2, 15}, "00715", {2026, 1, 7}},        {{2026, 8, 9}, "1\t4", {2026, 4, 1}},
        {{2026, 8, 1}, "//202", {2026, 8, 1}},         {{2026, 2, 15}, "y31/4/2026", {2026, 4, 30}},
        {{2026, 2, 15}, "y29/2/2024", {2024, 2, 29}},  {{2026, 2, 15}, "y5/3/25", {2025, 3, 5}},
        {{2026, 2, 15}, "y31122025", {2025, 12, 31}},  {{2026, 2, 15}, "m19/12/2025", {2025, 12, 19}},
        {{2026, 2, 15}, "y20242025", {2025, 2, 15}},   {{2026, 2, 15}, "m3/2027", {2027, 3, 15}},
        {{2026, 2, 1}, "150220261/2/25", {2025, 2, 1}}};
    for (const auto &[antes, teclas, despues] : casos) {
        campo->setDate(antes);
        campo->setFocus(Qt::TabFocusReason);
        for (const char tecla : QByteArray(teclas)) {
            if (tecla == 'm' || tecla == 'y') // a part that was clicked
                campo->setSelectedSection(tecla == 'm' ? CampoFecha::MonthSection : CampoFecha::YearSection);
            else
                tecla == '\t' ? Tecla(campo, Qt::Key_Tab) : QTest::keyClick(campo, tecla);
        }
        otro->setFocus();
        EXPECT_EQ(campo->date(), despues) << teclas << " " << campo->text().toStdString();
        EXPECT_EQ(campo->text(), despues.toString(u"dd/MM/yyyy"_qs));
    }
    QTest::mouseClick(campo->findChild<QLineEdit *>(), Qt::LeftButton, {}, QPoint(4, 4));
    EXPECT_EQ(campo->findChild<QLineEdit *>()->selectedText(), u"01");
    Tecla(campo, Qt::Key_Down, Qt::AltModifier);
    EXPECT_TRUE(campo->calendarWidget()->isVisible());
}

TEST(CampoHora, TakesAnHourAsItIsWritten) {
    CampoHora campo;
    const FiltroCampos filtro(&campo);
    MostrarVentana(campo);
    const char *const casos[][2] = {{"0815", "08:15"},   {"23:59", "23:59"}, {"9.05", "09:05"},
                                    {"1:3", "01:03"},    {"24:00", "02:00"}, {"12:60", "12:06"},
                                    {"1\b2345", "23:45"}};
    for (const auto &[teclas, despues] : casos) {
        campo.setTime(QTime(11, 11));
        campo.setSelectedSection(QDateTimeEdit::HourSection);
        for (const char tecla : QByteArray(teclas))
            tecla == '\b'
                ? QTest::mouseClick(campo.findChild<QLineEdit *>(), Qt::LeftButton, {}, QPoint(4, 4))
                : QTest::keyClick(&campo, tecla);
        EXPECT_EQ(campo.text(), QString::fromUtf8(despues)) << teclas;
        campo.clearFocus();
        campo.setFocus();
    }
}

} // namespace
} // namespace tarvo
