// From the end of the splash, and without it from the start of the process, to the painted main window, and
// what the program then weighs: the real program as a process, on a shop of 100,000 articles and 1,000,000
// documents and, as the limit, on an empty one.
//
// Needs a display without a window manager: xvfb-run -a build/release/bench/banco_arranque [articles
// documents]
#include "comparacion.h"
#include "muestra.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>

#include <xcb/xcb.h>

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <stdexcept>
#include <vector>

using namespace tarvo;
using namespace comparacion;

namespace {

constexpr int kSplash = 5000;       // ms
constexpr int kAltoPrincipal = 450; // pixels; the splash is lower
constexpr int kVeces = 3;
constexpr double kLimiteDirecto = 100; // ms

// Tells when a window comes onto the screen.
class Vigia {
  public:
    Vigia() : servidor_(xcb_connect(nullptr, nullptr)) {
        if (xcb_connection_has_error(servidor_) != 0)
            throw std::runtime_error("no display");
        const xcb_window_t raiz = xcb_setup_roots_iterator(xcb_get_setup(servidor_)).data->root;
        const std::uint32_t eventos = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
        xcb_change_window_attributes(servidor_, raiz, XCB_CW_EVENT_MASK, &eventos);
        xcb_flush(servidor_);
    }
    ~Vigia() { xcb_disconnect(servidor_); }
    Vigia(const Vigia &) = delete;
    Vigia &operator=(const Vigia &) = delete;

    // Waits for a window of at least this height that becomes visible.
    xcb_window_t Esperar(int alto) {
        while (const std::unique_ptr<xcb_generic_event_t, decltype(&std::free)> evento{
            xcb_wait_for_event(servidor_), &std::free}) {
            if ((evento->response_type & 0x7f) != XCB_MAP_NOTIFY)
                continue;
            const xcb_window_t ventana = reinterpret_cast<xcb_map_notify_event_t *>(evento.get())->window;
            if (Alto(ventana) >= alto)
                return ventana;
        }
        throw std::runtime_error("the display is gone");
    }
    // Waits for the menu bar to be painted over the black of the bare display.
    void EsperarPintada(xcb_window_t ventana) {
        while (!Pintada(ventana)) {
        }
    }

  private:
    bool Pintada(xcb_window_t ventana) {
        constexpr std::uint32_t kTodos = ~0U;
        const std::unique_ptr<xcb_get_image_reply_t, decltype(&std::free)> punto{
            xcb_get_image_reply(
                servidor_, xcb_get_image(servidor_, XCB_IMAGE_FORMAT_Z_PIXMAP, ventana, 5, 5, 1, 1, kTodos),
                nullptr),
            &std::free};
        return punto && xcb_get_image_data(punto.get())[0] != 0;
    }
    int Alto(xcb_window_t ventana) {
        const std::unique_ptr<xcb_get_geometry_reply_t, decltype(&std::free)> medidas{
            xcb_get_geometry_reply(servidor_, xcb_get_geometry(servidor_, ventana), nullptr), &std::free};
        return medidas ? medidas->height : 0;
    }
    xcb_connection_t *servidor_;
};

struct Medida {
    double ms = 0;
    double megas = 0;
};

Medida Arrancar(const QString &carpeta, bool directo) {
    Vigia vigia;
    QProcess programa;
    QProcessEnvironment entorno = QProcessEnvironment::systemEnvironment();
    entorno.insert(QStringLiteral("XDG_CONFIG_HOME"), carpeta);
    programa.setProcessEnvironment(entorno);
    programa.setStandardErrorFile(QProcess::nullDevice());
    QElapsedTimer reloj;
    reloj.start();
    programa.start(carpeta + QStringLiteral("/tarvo"),
                   directo ? QStringList{QStringLiteral("--directo")} : QStringList());
    if (!directo) {
        vigia.Esperar(200);
        reloj.start();
    }
    vigia.EsperarPintada(vigia.Esperar(kAltoPrincipal));
    Medida medida{static_cast<double>(reloj.elapsed() - (directo ? 0 : kSplash)), 0};
    medida.megas = MemoriaDe(std::to_string(programa.processId()));
    programa.kill();
    programa.waitForFinished();
    return medida;
}

struct Medidas {
    Medida trasSplash;
    Medida directo;
};

// The middle one of several starts.
Medida Medir(const QString &carpeta, bool directo) {
    std::vector<double> tiempos;
    std::vector<double> memorias;
    for (int i = 0; i < kVeces; ++i) {
        const Medida medida = Arrancar(carpeta, directo);
        tiempos.push_back(medida.ms);
        memorias.push_back(medida.megas);
    }
    return {Percentil(tiempos, 50), Percentil(memorias, 50)};
}

Medidas Medir(const MedidaTienda &tamano) {
    const Tienda tienda(tamano);
    if (!QFile::copy(QCoreApplication::applicationDirPath() + QStringLiteral("/../tarvo"),
                     tienda.base.filePath(QStringLiteral("tarvo"))))
        throw std::runtime_error("build the program first");
    return {Medir(tienda.base.path(), false), Medir(tienda.base.path(), true)};
}

} // namespace

int main(int argc, char **argv) {
    const QCoreApplication aplicacion(argc, argv);
    MedidaTienda grande{100000, 5000, 1000000};
    if (argc == 3) {
        grande.articulos = std::atoi(argv[1]);
        grande.ventas = std::atoi(argv[2]);
    }
    try {
        Tabla tabla;
        const Vigia siempre; // a display without any client resets itself
        const Medidas vacia = Medir({0, 0, 0});
        const Medidas medida = Medir(grande);
        tabla.Linea("start behind the splash, large shop / empty", medida.trasSplash.ms, vacia.trasSplash.ms,
                    "ms", 1.1);
        tabla.Linea("start without the splash, large shop / limit", medida.directo.ms, kLimiteDirecto, "ms",
                    1.0);
        tabla.Linea("memory of the started program, large / empty", medida.trasSplash.megas,
                    vacia.trasSplash.megas, "MB", 1.5);
        return tabla.Resultado();
    } catch (const std::exception &error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
}
