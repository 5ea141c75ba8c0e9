// The sale window on the small shop, with the operator's hands on it.
#pragma once

#include "tiendaprueba.h"

#include "sales/ultimocomprobante.h"
#include "sales/ventanas/frmventas.h"
#include "testkit/conventana.h"

namespace tarvo {

inline const QString kFinal = u"La búsqueda ha finalizado."_qs;
inline const QString kNuevaVenta = u"Está seguro de querer comenzar una nueva venta?"_qs;

class VentanaVentas : public ConVentana<FrmVentas> {
  protected:
    VentanaVentas() { mundo.datos.Ejecutar(kTienda); }
    ~VentanaVentas() override { ventana.reset(); } // before the document that it shows

    void Abrir() {
        ventana = std::make_unique<FrmVentas>(mundo.servicios(), anfitrion, Ultimo(), nullptr);
        ventana->resize(800, 455);
        MostrarVentana(*ventana);
    }
    // The document that was issued last in this program.
    UltimoComprobante &Ultimo() {
        if (!ultimo)
            ultimo = std::make_unique<UltimoComprobante>(mundo.servicios());
        return *ultimo;
    }
    void Escanear(const char *codigo) {
        Teclas(QLatin1String(codigo));
        Entrar();
        Entrar();
    }
    QString Linea(int fila, int columna) { return Lista("LVDetalle")->Lista()->Celda(fila, columna); }
    int Lineas() { return Lista("LVDetalle")->Lista()->Filas(); }
    QString Stock(int fila) { return Lista("LVArticulos")->Lista()->Celda(fila, articulo::Stock); }
    QAction *Accion(const char *clave) { return Control<QAction>(*C<QToolBar>("tbrControles"), clave); }
    void EsperaNuevaVenta(Respuesta respuesta) { mundo.preguntas.Espera(kNuevaVenta, No, respuesta); }

    std::unique_ptr<UltimoComprobante> ultimo;
};

class VentaAbierta : public VentanaVentas {
  protected:
    void SetUp() override { Abrir(); }
};

} // namespace tarvo
