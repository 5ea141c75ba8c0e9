#include "config/listaimpresoras.h"

#include <QScopedValueRollback>
#include <QSettings>

namespace tarvo {

ListaImpresoras::ListaImpresoras(QSettings &ajustes, QString clave, const QString &titulo, QObject *padre)
    : QObject(padre),
      ajustes_(ajustes),
      clave_(std::move(clave)),
      lista_({{.titulo = titulo, .ancho = 7100}}) {
    lista_.HacerMarcable();
    connect(&lista_, &QAbstractItemModel::dataChanged, this,
            [this](const QModelIndex &celda, const QModelIndex &, const QList<int> &roles) {
                AlCambiarMarca(celda, roles);
            });
}

void ListaImpresoras::Llenar(const QStringList &nombres) {
    const QScopedValueRollback marcando(marcando_, true);
    lista_.Limpiar();
    for (const QString &nombre : nombres)
        lista_.AgregarFila({nombre});
    const QString guardada = ajustes_.value(clave_).toString();
    MarcarSolo(lista_.Buscar(0, guardada.toStdString()));
}

void ListaImpresoras::Elegir(int fila) {
    if (fila < 0 || fila >= lista_.Filas())
        return;
    MarcarSolo(fila);
    ajustes_.setValue(clave_, lista_.Celda(fila, 0));
    ajustes_.sync();
    emit FilaElegida(fila);
}

QString ListaImpresoras::Elegida() const {
    for (int fila = 0; fila < lista_.Filas(); ++fila)
        if (lista_.Marcada(fila))
            return lista_.Celda(fila, 0);
    return {};
}

void ListaImpresoras::AlCambiarMarca(const QModelIndex &celda, const QList<int> &roles) {
    if (!marcando_ && (roles.isEmpty() || roles.contains(int(Qt::CheckStateRole))))
        Elegir(celda.row());
}

void ListaImpresoras::MarcarSolo(int fila) {
    const QScopedValueRollback marcando(marcando_, true);
    for (int otra = 0; otra < lista_.Filas(); ++otra)
        lista_.Marcar(otra, otra == fila);
}

} // namespace tarvo
