// A window that is only a record: what the list-and-detail logic has put into it.
#pragma once

#include "masterdata/articuloslogica.h"
#include "testkit/anfitrionprueba.h"

#include <map>

namespace tarvo {

class VistaPrueba : public VistaDetalle {
  public:
    std::map<int, QString> textos;
    std::map<int, QStringList> entradas;
    Habilitados habilitados;
    QString ficha;
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
    void EnfocarCampo(int campo) override { foco = campo; }
    int FilaActual() const override { return fila; }
    void SeleccionarFila(int nueva) override { fila = nueva; }
    void EnfocarLista() override {}
    void TitularFicha(const QString &nombre) override { ficha = nombre; }
    void Habilitar(const Habilitados &nuevos) override { habilitados = nuevos; }
    void AbrirPanel(PanelDetalle) override {}
    void CerrarPanel(PanelDetalle) override {}
};

class FiltroPrueba : public VistaFiltro {
  public:
    QStringList filtros;
    int elegido = -1;
    bool habilitado = false;

    void PonerFiltros(const QStringList &nuevos) override { filtros = nuevos; }
    void ElegirFiltro(int indice) override { elegido = indice; }
    void HabilitarFiltro(bool si) override { habilitado = si; }
    void EnfocarCatCodigo() override {}
    void EnfocarCatCategoria() override {}
};

} // namespace tarvo
