// The sample shop that a bench works on, and its data opened as the program opens them.
#pragma once

#include "store/store.h"
#include "tienda/tienda.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>

namespace comparacion {

// In memory where the system has a place for it: for measures of which the disk's mood would be the most.
inline QString CarpetaEnMemoria() {
    const QString memoria = QStringLiteral("/dev/shm");
    return QFileInfo(memoria).isWritable() ? memoria : QDir::tempPath();
}

struct Tienda {
    QTemporaryDir base;
    QString carpeta;
    explicit Tienda(const tarvo::MedidaTienda &medida, const QString &lugar = QDir::tempPath())
        : base(lugar + QStringLiteral("/tarvo-XXXXXX")),
          carpeta(tarvo::HacerTienda(base.path(), medida, QDate(2026, 11, 22))) {}
};

class BasesAbiertas : public tarvo::FrmBases {
  public:
    explicit BasesAbiertas(const QString &carpeta) : FrmBases(carpeta, tarvo::Moneda()) {
        if (Abrir().estado == tarvo::EstadoApertura::Completa)
            return;
        std::fprintf(stderr, "the sample shop does not open\n");
        std::exit(2);
    }
};

} // namespace comparacion
