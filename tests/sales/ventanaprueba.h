// The sale window on the small shop, with the operator's hands on it.
#pragma once

#include "tiendaprueba.h"

#include "desktop/ventanas/listavista.h"
#include "sales/ultimocomprobante.h"
#include "sales/ventanas/frmventas.h"
#include "testkit/anfitrionprueba.h"

#include <QAction>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTimer>
#include <QToolBar>

namespace tarvo {

inline const QString kFinal = QStringLiteral("La búsqueda ha finalizado.");

class VentanaVentas : public ::testing::Test {
  protected:
    VentanaVentas() { mundo.datos.Ejecutar(kTienda); }

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
    template <typename T> T *C(const char *nombre) { return Control<T>(*ventana, nombre); }
    QLineEdit *Campo(const char *nombre) { return C<QLineEdit>(nombre); }
    ListaVista *Lista(const char *nombre) { return C<ListaVista>(nombre); }
    QString Texto(const char *etiqueta) { return C<QLabel>(etiqueta)->text(); }
    bool Se(const char *nombre) { return C<QWidget>(nombre)->isVisible(); }
    void Clic(const char *boton) { Pulsar(C<QWidget>(boton)); }
    // Keys go to whatever has the focus, as from a keyboard.
    void Teclas(const QString &texto) {
        for (const QChar letra : texto)
            QTest::keyClick(QApplication::focusWidget(), letra.toLatin1());
    }
    void Entrar() { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return); }
    void Escanear(const char *codigo) {
        Teclas(QLatin1String(codigo));
        Entrar();
        Entrar();
    }
    QString Linea(int fila, int columna) { return Lista("LVDetalle")->Lista()->Celda(fila, columna); }
    int Lineas() { return Lista("LVDetalle")->Lista()->Filas(); }
    void Modo(const char *barra, const char *clave) {
        Control<QAction>(*C<QToolBar>(barra), clave)->trigger();
    }

    MundoPrueba mundo;
    AnfitrionPrueba anfitrion;
    std::unique_ptr<UltimoComprobante> ultimo;
    std::unique_ptr<FrmVentas> ventana;
};

} // namespace tarvo
