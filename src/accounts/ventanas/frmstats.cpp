#include "accounts/ventanas/frmstats.h"

#include "accounts/ventasdelmes.h"
#include "desktop/preguntas.h"
#include "desktop/reloj.h"
#include "desktop/ventanas/estilo.h"
#include "desktop/ventanas/filtrocampos.h"
#include "store/errordatos.h"
#include "store/store.h"
#include "ui_frmstats.h"

#include <QBarCategoryAxis>
#include <QBarSeries>
#include <QBarSet>
#include <QChart>
#include <QChartView>
#include <QGraphicsLayout>
#include <QValueAxis>

#include <algorithm>

namespace tarvo {

namespace {

const QString kMuestra = QStringLiteral("Valores de muestra");
const QString kRegla = QStringLiteral(
    "Cada barra es lo que suman las facturas contado y crédito de ese día, según su total. Las "
    "devoluciones y notas de crédito no se restan.");

QString AvisoIlegibles(int cuantos) {
    if (cuantos == 0)
        return {};
    return cuantos == 1 ? QStringLiteral(" Hay 1 comprobante cuyo total no se pudo leer; no está sumado.")
                        : QStringLiteral(" Hay %1 comprobantes cuyo total no se pudo leer; no están sumados.")
                              .arg(cuantos);
}

} // namespace

FrmStats::FrmStats(const Servicios &servicios, Anfitrion &, QWidget *padre)
    : VentanaModulo(padre), servicios_(servicios), ui_(std::make_unique<Ui::FrmStats>()) {
    ui_->setupUi(this);
    ui_->DTPFecha->setDate(servicios_.reloj.Ahora().date());
    CrearGrafico();
    connect(ui_->cmdBuscar, &QPushButton::clicked, this, &FrmStats::cmdBuscar_Click);
    new FiltroCampos(this);
    cmdBuscar_Click();
    ui_->DTPFecha->setFocus();
}

FrmStats::~FrmStats() = default;

void FrmStats::CrearGrafico() {
    auto *const serie = new QBarSeries;
    valores_ = new QBarSet(ui_->chkVentasMes->text());
    valores_->setColor(colores::kTitulo);
    serie->append(valores_);
    serie->setBarWidth(0.7);
    auto *const grafico = ui_->Chart1->chart();
    grafico->addSeries(serie);
    grafico->legend()->hide();
    grafico->setMargins({4, 4, 4, 4});
    grafico->layout()->setContentsMargins(0, 0, 0, 0); // it stands on a card
    grafico->setBackgroundRoundness(0);
    ejeDias_ = new QBarCategoryAxis(grafico);
    ejeValores_ = new QValueAxis(grafico);
    ejeDias_->setLabelsColor(colores::kTexto);
    ejeDias_->setTruncateLabels(false);
    ejeDias_->setGridLineVisible(false);
    ejeValores_->setLabelsColor(colores::kTexto);
    ejeValores_->setGridLineColor(colores::kLineas);
    grafico->addAxis(ejeDias_, Qt::AlignBottom);
    grafico->addAxis(ejeValores_, Qt::AlignLeft);
    serie->attachAxis(ejeDias_);
    serie->attachAxis(ejeValores_);
    ui_->Chart1->setRenderHint(QPainter::Antialiasing);
}

void FrmStats::cmdBuscar_Click() {
    const QDate mes = ui_->DTPFecha->date();
    const int dias = DiasDelMes(mes.month());
    if (!ui_->chkVentasMes->isChecked()) {
        Mostrar(ValoresDeMuestra(), dias);
        ui_->lblRegla->setText(kMuestra);
        return;
    }
    VentasDelMes ventas{.porDia = std::vector<double>(std::size_t(dias))};
    try {
        ventas = SumarVentasDelMes(servicios_.frmBases, mes.month(), mes.year());
    } catch (const ErrorDatos &error) {
        servicios_.preguntas.Mostrar(error.Descripcion(), Icono::Critico);
    }
    Mostrar(ventas.porDia, dias);
    ui_->lblRegla->setText(kRegla + AvisoIlegibles(ventas.ilegibles));
}

// The days are written smaller where they don't fit side by side, and stand upright where that isn't enough.
void FrmStats::resizeEvent(QResizeEvent *evento) {
    VentanaModulo::resizeEvent(evento);
    const int anchoDia = width() / (DiasDelMes(1) + 4);
    const auto cabe = [anchoDia](const QFont &letra) {
        return QFontMetrics(letra).horizontalAdvance(QStringLiteral("30 ")) <= anchoDia;
    };
    QFont dias = font();
    if (!cabe(dias))
        dias.setPointSizeF(dias.pointSizeF() * 0.75);
    ejeDias_->setLabelsFont(dias);
    ejeDias_->setLabelsAngle(cabe(dias) ? 0 : -90);
}

void FrmStats::Mostrar(const std::vector<double> &valores, int dias) {
    ui_->Chart1->chart()->setTitle(
        ui_->DTPFecha->locale().toString(ui_->DTPFecha->date(), QStringLiteral("MMMM 'de' yyyy")));
    QStringList rotulos;
    QStringList hablado; // for who doesn't see the bars
    QList<qreal> barras;
    for (int dia = 1; dia <= dias; ++dia) {
        rotulos += QString::number(dia);
        barras += valores[std::size_t(dia - 1)];
        hablado += QStringLiteral("%1: %2").arg(dia).arg(
            servicios_.frmBases.moneda().FormatoMoneda(barras.last(), false));
    }
    ui_->Chart1->setAccessibleDescription(hablado.join(QStringLiteral("; ")));
    valores_->remove(0, valores_->count());
    valores_->append(barras);
    ejeDias_->setCategories(rotulos);
    const auto [menor, mayor] = std::minmax_element(barras.begin(), barras.end());
    ejeValores_->setRange(std::min(0.0, *menor), std::max(*mayor, *menor < 0 ? 0.0 : 1.0));
    ejeValores_->setLabelFormat(QStringLiteral("%.0f"));
    ejeValores_->applyNiceNumbers();
}

} // namespace tarvo
