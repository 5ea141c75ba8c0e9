// Scripted questions: a test says beforehand what will be asked, in order, and what the operator answers.
#pragma once

#include "desktop/preguntas.h"
#include "testkit/imprimir.h"

#include <gtest/gtest.h>

#include <deque>
#include <utility>

namespace tarvo {

using enum Respuesta; // answers are so often said that they go by their bare names: Si, No

class PreguntasGuion final : public Preguntas {
  public:
    ~PreguntasGuion() override {
        for (const Paso &paso : guion_)
            ADD_FAILURE() << "not asked: " << paso.texto.toStdString();
        for (const auto &[pedido, ruta] : rutas_)
            ADD_FAILURE() << "not asked: " << pedido.titulo.toStdString();
    }

    void Espera(const QString &texto, Respuesta preseleccionada, Respuesta contestar) {
        guion_.push_back({texto, Icono::Pregunta, preseleccionada, contestar});
    }
    void EsperaRuta(const PedidoRuta &pedido, const QString &contestar) {
        rutas_.push_back({pedido, contestar});
    }
    void EsperaMensaje(const QString &texto, Icono icono = Icono::Informacion) {
        guion_.push_back({texto, icono, {}, {}});
    }
    void EsperaFalla(const QString &texto) { EsperaMensaje(texto, Icono::Critico); }
    bool Terminado() const { return guion_.empty() && rutas_.empty(); }

    Respuesta Preguntar(const QString &texto, Respuesta preseleccionada) override {
        const Paso paso = Tomar(texto);
        if (paso.texto != texto)
            return preseleccionada;
        EXPECT_EQ(paso.icono, Icono::Pregunta)
            << "a message was expected, not a question: " << texto.toStdString();
        EXPECT_EQ(paso.preseleccionada, preseleccionada)
            << "other button preselected: " << texto.toStdString();
        return paso.contestar;
    }
    void Mostrar(const QString &texto, Icono icono) override {
        const Paso paso = Tomar(texto);
        if (paso.texto == texto) {
            EXPECT_EQ(paso.icono, icono) << "other icon: " << texto.toStdString();
        }
    }
    QString ElegirRuta(const PedidoRuta &pedido) override {
        if (rutas_.empty()) {
            ADD_FAILURE() << "unexpected: " << pedido.titulo.toStdString();
            return {};
        }
        const auto [esperado, ruta] = rutas_.front();
        rutas_.pop_front();
        EXPECT_EQ(pedido.para, esperado.para);
        EXPECT_EQ(pedido.titulo, esperado.titulo);
        EXPECT_EQ(pedido.filtro, esperado.filtro);
        EXPECT_EQ(pedido.carpeta, esperado.carpeta);
        return ruta;
    }

  private:
    struct Paso {
        QString texto;
        Icono icono = Icono::Ninguno;
        Respuesta preseleccionada = Respuesta::No;
        Respuesta contestar = Respuesta::No;
    };
    // The next step; an unexpected text is a failure and leaves the script as it is.
    Paso Tomar(const QString &texto) {
        if (guion_.empty() || guion_.front().texto != texto) {
            ADD_FAILURE() << "unexpected: " << texto.toStdString()
                          << (guion_.empty() ? "" : "\n  expected: " + guion_.front().texto.toStdString());
            return {};
        }
        Paso paso = guion_.front();
        guion_.pop_front();
        return paso;
    }
    std::deque<Paso> guion_;
    std::deque<std::pair<PedidoRuta, QString>> rutas_; // in their own order
};

} // namespace tarvo
