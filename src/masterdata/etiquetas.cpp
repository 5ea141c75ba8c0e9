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

void Etiquetas::Leer() {
    todas_.clear();
    idDe_.clear();
    deId_.clear();
    const int filas = Filas();
    for (int fila = filas - 1; fila >= 0; --fila) { // so that the first of equal ones is the one that stays
        const QString id = id_.Columna().Texto(fila);
        todas_.prepend(DeFila(fila));
        idDe_.insert(todas_.first(), id);
        deId_.insert(id, todas_.first());
    }
}

} // namespace tarvo
