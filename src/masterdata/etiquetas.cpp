#include "masterdata/etiquetas.h"

#include "store/errordatos.h"

namespace tarvo {

Etiquetas::Etiquetas(Cursor &cursor, Campo &id, std::vector<const Campo *> partes, QString final)
    : cursor_(cursor), id_(id), partes_(std::move(partes)), final_(std::move(final)) {}

int Etiquetas::Filas() const {
    try {
        const int filas = cursor_.RecordCount();
        if (filas > 0) {
            id_.Columna();
            for (const Campo *parte : partes_)
                parte->Columna();
        }
        return filas;
    } catch (const ErrorDatos &) {
        return 0;
    }
}

QString Etiquetas::DeFila(int fila) const {
    QStringList textos;
    for (const Campo *parte : partes_)
        textos << parte->Columna().Texto(fila);
    return textos.join(QStringLiteral(" - ")) + final_;
}

QStringList Etiquetas::Todas() const {
    QStringList todas;
    const int filas = Filas();
    todas.reserve(filas);
    for (int fila = 0; fila < filas; ++fila)
        todas << DeFila(fila);
    return todas;
}

QString Etiquetas::IdDe(const QString &etiqueta) const {
    const int filas = Filas();
    for (int fila = 0; fila < filas; ++fila) {
        if (DeFila(fila) == etiqueta)
            return id_.Columna().Texto(fila);
    }
    return {};
}

QString Etiquetas::DeId(const QString &id) const {
    const std::string buscado = id.toStdString();
    const int filas = Filas();
    for (int fila = 0; fila < filas; ++fila) {
        if (id_.Columna().Celda(fila) == buscado)
            return DeFila(fila);
    }
    return {};
}

} // namespace tarvo
