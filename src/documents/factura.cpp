#include "documents/factura.h"

#include "documents/archivofactura.h"
#include "documents/archivos.h"
#include "documents/superficie.h"
#include "store/errordatos.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>

namespace tarvo {

namespace {

constexpr double kPuntosPrueba = 10;
constexpr double kPuntosValores = 8; // a date fits its field in it
constexpr float kLejos = 1e6F;       // of any sheet; a file may say any number

using enum CampoFactura;
constexpr std::array kTotales{Descuento, Subtotal, Impuesto1, Impuesto2, Total, TotalDesc};

int Twips(double valor) {
    return static_cast<int>(std::lround(std::clamp<double>(valor, -kLejos, kLejos)));
}

void Situar(Superficie &papel, const Pieza &pieza) {
    papel.Posicion(Twips(pieza.left), Twips(pieza.top));
}

void ImprimirEtiquetas(Superficie &papel, const DisenoFactura &diseno) {
    Letra letra;
    letra.puntos = kPuntosPrueba;
    for (const EtiquetaLibre &etiqueta : diseno.etiquetas) {
        if (!etiqueta.visible)
            continue;
        papel.PonerLetra({letra.familia, letra.puntos, etiqueta.negrita, etiqueta.cursiva, etiqueta.tachada,
                          etiqueta.subrayada});
        Situar(papel, etiqueta);
        papel.Linea(etiqueta.texto);
    }
    papel.PonerLetra(letra);
}

void ImprimirLogo(Superficie &papel, const FormularioFactura &formulario) {
    const Pieza &logo = formulario.diseno.logo;
    const QImage &imagen = formulario.logo;
    if (logo.visible && !imagen.isNull())
        papel.Imagen(imagen, Twips(logo.left), Twips(logo.top), imagen.width() * kTwipsPorPixel,
                     imagen.height() * kTwipsPorPixel);
}

// Prints values in their fields.
class Hoja {
  public:
    Hoja(Superficie &papel, const FormularioFactura &formulario) : papel_(papel), formulario_(formulario) {
        papel.PonerLetra({});
        papel.Tamano(kPuntosValores);
    }
    void Texto(CampoFactura campo, const QString &valor, int fila = 0) {
        const double caben = std::floor(DatosDe(campo).ancho / papel_.AnchoCaracter());
        Poner(campo, Cortar(valor, static_cast<qsizetype>(caben)), fila, 0);
    }
    void Importe(CampoFactura campo, const QString &valor, int fila = 0) {
        const double largo = static_cast<double>(valor.size()) * papel_.AnchoCaracter();
        Poner(campo, valor, fila, DatosDe(campo).ancho - largo);
    }
    void Cabecera(const Comprobante &venta);
    void Lineas(std::span<const LineaComprobante> lineas);
    void Totales(const Comprobante &venta);
    void Sigue();
    void Fijo() {
        ImprimirEtiquetas(papel_, formulario_.diseno);
        ImprimirLogo(papel_, formulario_);
    }

  private:
    void Poner(CampoFactura campo, const QString &valor, int fila, double corrido) {
        const Pieza &pieza = formulario_.diseno.De(campo);
        if (!pieza.visible || valor.isEmpty())
            return;
        papel_.Posicion(Twips(pieza.left + corrido), Twips(pieza.top + fila * papel_.AltoLinea()));
        papel_.Texto(valor);
    }
    Superficie &papel_;
    const FormularioFactura &formulario_;
};

void Hoja::Cabecera(const Comprobante &venta) {
    Texto(CliCodigo, venta.codigoCliente);
    Texto(CliNombre, venta.cliente);
    Texto(CliIdFiscal, venta.idFiscal);
    Texto(CliCFinal, venta.consumidorFinal ? QStringLiteral("X") : QString());
    Texto(NComprobante, venta.numero);
    Texto(TipoComprobante, venta.tipo);
    Texto(Fecha, venta.fecha);
    Texto(Hora, venta.hora);
    Texto(Vendedor, venta.vendedor);
}

void Hoja::Lineas(std::span<const LineaComprobante> lineas) {
    int fila = 0;
    for (const LineaComprobante &linea : lineas) {
        Texto(DetCodigo, linea.codigo, fila);
        Texto(DetArticulo, linea.nombre, fila);
        Importe(DetPUnitario, linea.precioUnitario, fila);
        Importe(DetCantidad, linea.cantidad, fila);
        Importe(DetSubtotal, linea.subtotal, fila);
        ++fila;
    }
}

void Hoja::Totales(const Comprobante &venta) {
    Importe(Descuento, venta.descuento);
    Importe(Subtotal, venta.subtotal);
    Importe(Impuesto1, venta.iva);
    Importe(Impuesto2, venta.impuesto);
    Importe(Total, venta.total);
    Importe(TotalDesc, venta.totalConDescuento);
}

// Where the eye looks for what is to pay: the last of the totals that is shown.
void Hoja::Sigue() {
    const auto ultimo = std::find_if(kTotales.rbegin(), kTotales.rend(), [this](CampoFactura campo) {
        return formulario_.diseno.De(campo).visible;
    });
    if (ultimo != kTotales.rend())
        Importe(*ultimo, QStringLiteral("Sigue..."));
}

} // namespace

void CargarFormulario(const QString &ruta, FormularioFactura &formulario) {
    const QString rutaLogo = CargarDiseno(ruta, formulario.diseno);
    formulario.logo = rutaLogo.isEmpty() ? LogoIncorporado() : CargarImagen(rutaLogo);
}

void AvisarLectura(Preguntas &preguntas, const ErrorDatos &error) {
    if (error.Numero() == errores::kRutaNoEncontrada)
        preguntas.Mostrar(error.Descripcion(), Icono::Critico);
    else if (error.Numero() == errores::kImagenInvalida)
        preguntas.Mostrar(QStringLiteral("La imagen no es válida."), Icono::Critico);
    else
        preguntas.Informar(QStringLiteral("No se reconoce el formato del archivo."));
}

void ImprimirPruebaFactura(Superficie &papel, const FormularioFactura &formulario) {
    const DisenoFactura &diseno = formulario.diseno;
    papel.PonerLetra({});
    papel.Tamano(kPuntosPrueba);
    for (std::size_t i = 0; i < diseno.campos.size(); ++i) {
        if (!diseno.campos[i].visible)
            continue;
        Situar(papel, diseno.campos[i]);
        papel.Linea(DatosDe(i).rotulo);
    }
    ImprimirEtiquetas(papel, diseno);
    ImprimirLogo(papel, formulario);
    papel.Terminar();
}

void ImprimirFactura(Superficie &papel, const FormularioFactura &formulario, const Comprobante &venta,
                     int lineasPorHoja) {
    const auto porHoja = static_cast<std::size_t>(std::max(lineasPorHoja, 1));
    std::span<const LineaComprobante> quedan = venta.lineas;
    for (;;) {
        Hoja hoja(papel, formulario);
        hoja.Cabecera(venta);
        const std::size_t caben = std::min(porHoja, quedan.size());
        hoja.Lineas(quedan.first(caben));
        quedan = quedan.subspan(caben);
        const bool ultima = quedan.empty();
        ultima ? hoja.Totales(venta) : hoja.Sigue();
        hoja.Fijo();
        if (ultima)
            break;
        papel.NuevaPagina();
    }
    papel.Terminar();
}

} // namespace tarvo
