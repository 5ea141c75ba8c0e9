#include "desktop/ventanas/estadoteclado.h"

#include <QGuiApplication>

#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>

namespace tarvo {

namespace {

struct Liberar {
    void operator()(xcb_query_pointer_reply_t *respuesta) const { std::free(respuesta); }
};

} // namespace

EstadoTeclado LeerEstadoTeclado() {
    auto *const x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (x11 == nullptr || x11->connection() == nullptr)
        return {};
    xcb_connection_t *const conexion = x11->connection();
    const xcb_window_t raiz = xcb_setup_roots_iterator(xcb_get_setup(conexion)).data->root;
    const std::unique_ptr<xcb_query_pointer_reply_t, Liberar> respuesta(
        xcb_query_pointer_reply(conexion, xcb_query_pointer(conexion, raiz), nullptr));
    if (respuesta == nullptr)
        return {};
    // Num lock sits on the second modifier wherever X11 runs with its usual keyboard tables.
    return {(respuesta->mask & XCB_MOD_MASK_LOCK) != 0, (respuesta->mask & XCB_MOD_MASK_2) != 0};
}

} // namespace tarvo
