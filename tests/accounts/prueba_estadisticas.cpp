#include "accounts/ventanas/frmstats.h"
#include "accounts/ventasdelmes.h"
#include "testkit/conventana.h"

#include <QBarCategoryAxis>
#include <QBarSeries>
#include <QBarSet>
#include <QChart>
#include <QChartView>
#include <QDateEdit>

namespace tarvo {
namespace {

constexpr const char *kNoviembre =
    "INSERT INTO ventas.Ventas(fecha, tipo, total) VALUES"
    "('01/11/2026','Contado','$ 10,50'), ('1/11/2026','Credito','$ 4,50'),"
    "('01/11/2026','Recibo','$ 99,00'), ('01/11/2026','DevContado','$ 10,50'), "
    "('01/11/2026','NotaCredito','$ 4,50'),"
    "('30/11/2026','Contado','$ 7,00'), ('30/11/2025','Contado','$ 500,00'), ('30/10/2026','Contado','$ "
    "500,00'),"
    "('15/11/2026','Contado','doce'), ('15/11/2026','Credito','$ 1.234,50'), ('31/11/2026','Contado','$ "
    "1,00'),"
    "('', 'Contado','$ 1,00'), ('ayer','Contado','$ 1,00'), ('2026/11/','Contado','$ 1,00'), "
    "('15/11/2026','Contado','12,50'), ('15/11/2026','Contado','3.50'), ('15/11/2026','Contado','$ -3,00')";

TEST(VentasDelMes, DaysOfAMonthWhateverTheYear) {
    const int dias[] = {31, 29, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    for (int mes = 1; mes <= 12; ++mes)
        EXPECT_EQ(DiasDelMes(mes), dias[mes - 1]) << mes;
    EXPECT_EQ(ValoresDeMuestra().size(), 31U);
}

TEST(VentasDelMes, AddsInvoicesByDayAndCountsWhatItCantRead) {
    DatosPrueba datos;
    datos.Ejecutar(kNoviembre);
    const VentasDelMes ventas = SumarVentasDelMes(datos.Abrir(), 11, 2026);
    ASSERT_EQ(ventas.porDia.size(), 30U);
    EXPECT_DOUBLE_EQ(ventas.porDia[0], 15);
    EXPECT_DOUBLE_EQ(ventas.porDia[14], 13); // with and without symbol, either separator
    EXPECT_DOUBLE_EQ(ventas.porDia[29], 7);
    EXPECT_EQ(ventas.ilegibles, 2);
    EXPECT_EQ(SumarVentasDelMes(datos.Bases(), 2, 2026).porDia.size(), 29U);
}

using Estadisticas = ConVentana<FrmStats>;

TEST_F(Estadisticas, ShowSampleValuesUntilTheSalesAreAskedFor) {
    mundo.datos.Ejecutar(kNoviembre);
    ventana = std::make_unique<FrmStats>(mundo.servicios(), anfitrion);
    MostrarVentana(*ventana);
    auto *const grafico = C<QChartView>("Chart1")->chart();
    const auto primera = [&] {
        return static_cast<QBarSeries *>(grafico->series().first())->barSets().first()->at(0);
    };
    const auto rotulos = [&] {
        return static_cast<QBarCategoryAxis *>(grafico->axes(Qt::Horizontal).first())->categories();
    };
    EXPECT_EQ(rotulos().size(), 30);
    EXPECT_EQ(rotulos().last(), u"30");
    EXPECT_EQ(Texto("lblRegla"), u"Valores de muestra");
    EXPECT_EQ(primera(), ValoresDeMuestra()[0]);

    C<QCheckBox>("chkVentasMes")->setChecked(true);
    C<QDateEdit>("DTPFecha")->setDate({2026, 2, 1});
    EXPECT_EQ(rotulos().size(), 30); // nothing before the button
    Clic("cmdBuscar");
    EXPECT_EQ(rotulos().size(), 29);
    Teclear(C("DTPFecha"), u"112026"_qs); // by its number as well as by its name
    Clic("cmdBuscar");
    EXPECT_EQ(primera(), 15);
    EXPECT_TRUE(Texto("lblRegla").contains(u"2 comprobantes")) << Texto("lblRegla").toStdString();
}

} // namespace
} // namespace tarvo
