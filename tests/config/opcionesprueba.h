// What the tests of the options share: the window over a temporary data folder, its controls by name.
#pragma once

#include "config/ventanas/frmconfig.h"
#include "desktop/ventanas/listavista.h"
#include "testkit/mundoprueba.h"

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTreeView>

#include <memory>

namespace tarvo {

// What the operator reads when a trigger of a test refuses a write with the text 'x'.
inline constexpr const char *kRechazo = "No se pudo escribir en la base de datos: x.";

class OpcionesPrueba : public testing::Test {
  protected:
    MundoPrueba mundo;
    std::unique_ptr<FrmConfig> ventana;

    void Sql(const char *sql) { mundo.datos.Ejecutar(sql); }
    void Abrir(bool abrirDisenador = false) {
        mundo.datos.Abrir();
        ventana = std::make_unique<FrmConfig>(mundo.servicios(), abrirDisenador);
        MostrarVentana(*ventana);
    }
    void ElegirNodo(int nodo) {
        auto *arbol = Control<QTreeView>(*ventana, "TVOpciones");
        arbol->setCurrentIndex(arbol->model()->index(nodo, 0));
    }

    QLineEdit *Campo(const char *nombre) { return Control<QLineEdit>(*ventana, nombre); }
    QPushButton *Boton(const char *nombre) { return Control<QPushButton>(*ventana, nombre); }
    QString Texto(const char *nombre) { return Campo(nombre)->text(); }
    ListaVista *Lista(const char *nombre) { return Control<ListaVista>(*ventana, nombre); }
    void Pulsar(const char *boton) { tarvo::Pulsar(Boton(boton)); }
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
    void EsperaMensaje(const char *texto, Icono icono = Icono::Informacion) {
        mundo.preguntas.EsperaMensaje(QString::fromUtf8(texto), icono);
    }
    void EsperaPregunta(const char *texto, Respuesta contestar, Respuesta preseleccionada = Respuesta::No) {
        mundo.preguntas.Espera(QString::fromUtf8(texto), preseleccionada, contestar);
    }
    // The rows of a query as "a|b; c|d".
    QString Filas(const char *sql) {
        QStringList filas;
        for (const auto &fila : mundo.datos.Filas(sql))
            filas << QStringList(fila.begin(), fila.end()).join(QLatin1Char('|'));
        return filas.join(u"; "_qs);
    }
};

} // namespace tarvo
