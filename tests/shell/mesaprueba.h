// A workspace without windows: sets of checked entries, pressed buttons and open windows, with a log of what
// the switching rule did and asked.
#pragma once

#include "shell/conmutador.h"
#include "testkit/preguntasguion.h"

#include <QSet>
#include <QStringList>

#include <algorithm>
#include <map>
#include <stdexcept>

namespace tarvo {

inline QString Clave(Entrada entrada) {
    return DatosDe(entrada).clave.toString();
}
inline QString Clave(Modulo modulo) {
    return Clave(DatosDe(modulo).entrada);
}
inline QString Boton(Entrada entrada) {
    return DatosDe(entrada).boton->clave.toString();
}
inline QString Boton(Modulo modulo) {
    return Boton(DatosDe(modulo).entrada);
}

inline QString Junta(const QSet<QString> &claves) {
    QStringList lista(claves.begin(), claves.end());
    std::sort(lista.begin(), lista.end());
    return lista.join(u' ');
}

class MesaPrueba : public TableroModulos, public VentanasModulos, public Preguntas {
  public:
    QSet<QString> marcadas, presionados, abiertas, conEntrada;
    QStringList hechos; // "+ventas" and "-ventas" buttons, "abre ventas", "cierra ventas", ...
    QStringList preguntadas;
    Respuesta respuesta = No;
    int ticksPedidos = 0;
    bool fallaMostrar = false;
    Conmutador conmutador{*this, *this, *this};

    // The module as it is when it was opened by the rule.
    void Abierta(Modulo modulo, bool entrada) {
        marcadas += Clave(modulo);
        abiertas += Clave(modulo);
        presionados += Boton(modulo);
        if (entrada)
            conEntrada += Clave(modulo);
    }

    void PorTecla(Modulo modulo) {
        static const std::map<Modulo, void (Conmutador::*)()> manejadores{
            {Modulo::Ventas, &Conmutador::mnuVentas},
            {Modulo::Articulos, &Conmutador::mnuArticulos},
            {Modulo::Clientes, &Conmutador::mnuClientes},
            {Modulo::Proveedores, &Conmutador::mnuProveedores},
            {Modulo::Estados, &Conmutador::mnuEstadosClientes},
            {Modulo::Stats, &Conmutador::mnuStats}};
        (conmutador.*manejadores.at(modulo))();
    }
    // A click has toggled the button before the handler runs.
    void PorClic(Modulo modulo) {
        const QString boton = Boton(modulo);
        presionados.contains(boton) ? presionados -= boton : presionados += boton;
        PorTecla(modulo);
    }
    void Tick() {
        for (; ticksPedidos > 0; --ticksPedidos)
            conmutador.Timer1_Timer();
    }

    bool MenuMarcado(Entrada entrada) const override { return marcadas.contains(Clave(entrada)); }
    void MarcarMenu(Entrada entrada, bool valor) override {
        valor ? marcadas += Clave(entrada) : marcadas -= Clave(entrada);
    }
    bool BotonPresionado(Entrada entrada) const override { return presionados.contains(Boton(entrada)); }
    void PresionarBoton(Entrada entrada, bool valor) override {
        const QString boton = Boton(entrada);
        hechos += (valor ? u'+' : u'-') + boton;
        valor ? presionados += boton : presionados -= boton;
    }
    void IniciarTimer1() override { ticksPedidos = 1; }

    bool EntradaEnCurso(Modulo modulo) const override { return conEntrada.contains(Clave(modulo)); }
    void Mostrar(Modulo modulo) override {
        if (fallaMostrar)
            throw std::runtime_error("no window");
        abiertas += Clave(modulo);
        hechos += u"abre "_qs + Clave(modulo);
    }
    void Cerrar(Modulo modulo) override {
        const QString clave = Clave(modulo);
        if (!abiertas.contains(clave))
            return;
        abiertas -= clave;
        conEntrada -= clave;
        hechos += u"cierra "_qs + clave;
    }
    void MostrarOpciones(bool abrirDisenador) override {
        hechos += abrirDisenador ? u"opciones y diseñador"_qs : u"opciones"_qs;
    }
    void MostrarRespaldo() override { hechos += u"respaldo"_qs; }
    void EjecutarContado() override { hechos += u"contado"_qs; }
    void EjecutarPorCliente() override { hechos += u"por cliente"_qs; }
    void MostrarCalculadora() override { hechos += u"abre calculadora"_qs; }
    void CerrarCalculadora() override { hechos += u"cierra calculadora"_qs; }

    Respuesta Preguntar(const QString &texto, Respuesta preseleccionada) override {
        if (preseleccionada != No)
            throw std::logic_error("No is the preselected answer of every question");
        preguntadas += texto;
        return respuesta;
    }
    void Mostrar(const QString &, Icono) override { throw std::logic_error("the rule shows no messages"); }
    QString ElegirRuta(const PedidoRuta &) override { throw std::logic_error("the rule picks no files"); }

    // Checks, windows and buttons all tell the same: this module and no other.
    bool SoloAbierta(Modulo modulo) const {
        return marcadas == QSet{Clave(modulo)} && abiertas == QSet{Clave(modulo)} &&
               presionados == QSet{Boton(modulo)};
    }
    bool Vacia() const { return marcadas.isEmpty() && abiertas.isEmpty() && presionados.isEmpty(); }
};

} // namespace tarvo
