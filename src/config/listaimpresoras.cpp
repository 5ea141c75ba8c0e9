#include "config/listaimpresoras.h"

#include <QSettings>

namespace tarvo {

ListaImpresoras::ListaImpresoras(QSettings &ajustes, QString clave, const QString &titulo, QObject *padre)
    : QObject(padre),
      ajustes_(ajustes),
      clave_(std::move(clave)),
      lista_({{.titulo = titulo, .ancho = 7100}}) {
    lista_.PonerMarcable(true);
    connect(&lista_, &ListaTexto::MarcaPulsada, this, &ListaImpresoras::Elegir);
}

void ListaImpresoras::Llenar(const QStringList &nombres) {
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
    if (ajustes_.status() != QSettings::NoError)
        emit NoGuardada();
    emit FilaElegida(fila);
}

QString ListaImpresoras::Elegida() const {
    for (int fila = 0; fila < lista_.Filas(); ++fila)
        if (lista_.Marcada(fila))
            return lista_.Celda(fila, 0);
    return {};
}

void ListaImpresoras::MarcarSolo(int fila) {
    for (int otra = 0; otra < lista_.Filas(); ++otra)
        lista_.Marcar(otra, otra == fila);
}

} // namespace tarvo
