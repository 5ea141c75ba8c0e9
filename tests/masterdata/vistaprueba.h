// A window that is only a record: what the list-and-detail logic has put into it.
#pragma once

#include "desktop/anfitrion.h"
#include "masterdata/articuloslogica.h"

#include <map>

namespace tarvo {

class VistaPrueba : public VistaDetalle {
  public:
    std::map<int, QString> textos;
    std::map<int, QStringList> entradas;
    Botones botones;
    bool conDatos = false;
    bool listaHabilitada = true;
    int foco = -1;
    int fila = -1;

    QString Texto(int campo) const override {
        const auto lugar = textos.find(campo);
        return lugar == textos.end() ? QString() : lugar->second;
    }
    void Poner(int campo, const QString &texto) override { textos[campo] = texto; }
    void PonerEntradas(int campo, const QStringList &nuevas) override {
        entradas[campo] = nuevas;
        textos[campo].clear();
    }
    void HabilitarCampos(bool si) override { conDatos = si; }
    void EnfocarCampo(int campo) override { foco = campo; }
    int FilaActual() const override { return fila; }
    void SeleccionarFila(int nueva) override { fila = nueva; }
    void HabilitarLista(bool si) override { listaHabilitada = si; }
    void EnfocarLista() override {}
    void MostrarBotones(const Botones &nuevos) override { botones = nuevos; }
};

class FiltroPrueba : public VistaFiltro {
  public:
    QStringList filtros;
    int elegido = -1;
    bool habilitado = false;
    bool panel = false;

    void PonerFiltros(const QStringList &nuevos) override { filtros = nuevos; }
    void ElegirFiltro(int indice) override { elegido = indice; }
    void HabilitarFiltro(bool si) override { habilitado = si; }
    void MostrarPanelCategoria(bool visible) override { panel = visible; }
    void EnfocarCatCodigo() override {}
    void EnfocarCatCategoria() override {}
};

// Remembers whether a list can be exported.
class AnfitrionPrueba : public Anfitrion {
  public:
    QList<bool> dicho;

    void PonerExportable(bool posible) override { dicho << posible; }
    void Sugerencia(const QString &) override {}
};

} // namespace tarvo
