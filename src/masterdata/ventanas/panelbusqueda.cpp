#include "masterdata/ventanas/panelbusqueda.h"

#include "ui_panelbusqueda.h"

#include <QCheckBox>

namespace tarvo {

PanelBusqueda::PanelBusqueda(const QStringList &criterios, QWidget *padre)
    : QFrame(padre), ui_(std::make_unique<Ui::PanelBusqueda>()) {
    ui_->setupUi(this);
    txtArtBuscar = ui_->txtArtBuscar;
    cmdBuscarArt = ui_->cmdBuscarArt;
    cmdCancelarArt = ui_->cmdCancelarArt;
    txtArtBuscar->setMinimumWidth(45 * fontMetrics().averageCharWidth());
    QWidget *anterior = txtArtBuscar;
    for (const QString &criterio : criterios) {
        auto *casilla = new QCheckBox(criterio, this);
        casilla->setObjectName(QStringLiteral("chkBuscarPor(%1)").arg(chkBuscarPor.size()));
        casilla->setChecked(chkBuscarPor.empty());
        connect(casilla, &QCheckBox::clicked, this, [this] { txtArtBuscar->setFocus(); });
        ui_->criterios->addWidget(casilla);
        setTabOrder(anterior, casilla);
        anterior = casilla;
        chkBuscarPor.push_back(casilla);
    }
    ui_->criterios->addStretch();
    setTabOrder(anterior, cmdBuscarArt);
    hide();
}

PanelBusqueda::~PanelBusqueda() = default;

std::vector<bool> PanelBusqueda::Marcados() const {
    std::vector<bool> marcados;
    for (const QCheckBox *casilla : chkBuscarPor)
        marcados.push_back(casilla->isChecked());
    return marcados;
}

} // namespace tarvo
