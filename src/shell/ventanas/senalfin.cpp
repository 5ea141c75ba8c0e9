#include "shell/ventanas/senalfin.h"

#include <QSocketNotifier>

#include <array>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace tarvo {

namespace {

constexpr std::array kSenales{SIGTERM, SIGINT, SIGHUP};

// A signal handler may do no more than write one byte, and reaches nothing but what lies here.
volatile std::sig_atomic_t escritura = -1;

void Anotar(int) {
    const char byte = 1;
    [[maybe_unused]] const ssize_t escritos = write(escritura, &byte, 1);
}

} // namespace

SenalFin::SenalFin(QObject *padre) : QObject(padre) {
    std::array<int, 2> tubo{};
    if (pipe2(tubo.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    lectura_ = tubo[0];
    escritura = tubo[1];
    auto *aviso = new QSocketNotifier(lectura_, QSocketNotifier::Read, this);
    connect(aviso, &QSocketNotifier::activated, this, [this, aviso] {
        aviso->setEnabled(false);
        emit Pedida();
    });
    for (const int senal : kSenales)
        std::signal(senal, Anotar);
}

SenalFin::~SenalFin() {
    if (lectura_ < 0)
        return;
    for (const int senal : kSenales)
        std::signal(senal, SIG_DFL);
    close(lectura_);
    close(escritura);
}

} // namespace tarvo
