#include "desktop/ventanas/acceso.h"

#include "desktop/ventanas/accesolista.h"
#include "desktop/ventanas/etiquetaimporte.h"
#include "desktop/ventanas/listavista.h"

#include <QAccessibleWidget>

namespace tarvo {

namespace {

class AccesoImporte final : public QAccessibleWidget {
  public:
    explicit AccesoImporte(EtiquetaImporte *etiqueta)
        : QAccessibleWidget(etiqueta, QAccessible::StaticText) {}
    QString text(QAccessible::Text parte) const override {
        return parte == QAccessible::Name ? static_cast<EtiquetaImporte *>(widget())->Hablado()
                                          : QAccessibleWidget::text(parte);
    }
};

QAccessibleInterface *CrearAcceso(const QString &, QObject *objeto) {
    if (auto *importe = qobject_cast<EtiquetaImporte *>(objeto))
        return new AccesoImporte(importe);
    if (auto *lista = qobject_cast<ListaVista *>(objeto))
        return new AccesoLista(lista);
    return nullptr;
}

} // namespace

void PrepararAcceso() {
    QAccessible::installFactory(CrearAcceso);
}

} // namespace tarvo
