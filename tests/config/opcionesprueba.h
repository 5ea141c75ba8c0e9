// What the tests of the options share: the window over a temporary data folder, its controls by name.
#pragma once

#include "config/ventanas/frmconfig.h"
#include "testkit/conventana.h"

#include <QTreeView>

namespace tarvo {

class OpcionesPrueba : public ConVentana<FrmConfig> {
  protected:
    void Sql(const char *sql) { mundo.datos.Ejecutar(sql); }
    void Abrir() {
        ventana = std::make_unique<FrmConfig>(mundo.servicios(), false);
        MostrarVentana(*ventana);
    }
    void ElegirNodo(int nodo) {
        auto *arbol = C<QTreeView>("TVOpciones");
        arbol->setCurrentIndex(arbol->model()->index(nodo, 0));
    }
    // Types over the whole text.
    void Teclear(const char *campo, const char *texto) {
        Campo(campo)->selectAll();
        tarvo::Teclear(Campo(campo), QString::fromUtf8(texto));
    }
    void CerrarTodo() {
        ventana.reset();
        mundo.datos.Cerrar();
    }
    void Escribir(const char *campo, const char *texto) { Campo(campo)->setText(QString::fromUtf8(texto)); }
    void EsperaMensaje(const char *texto) { mundo.preguntas.EsperaMensaje(QString::fromUtf8(texto)); }
    void EsperaFalla(const char *texto) { mundo.preguntas.EsperaFalla(QString::fromUtf8(texto)); }
    void EsperaPregunta(const char *texto, Respuesta contestar, Respuesta preseleccionada = No) {
        mundo.preguntas.Espera(QString::fromUtf8(texto), preseleccionada, contestar);
    }
    QString Tabla(const char *sql) { return mundo.datos.Tabla(sql); }
};

} // namespace tarvo
