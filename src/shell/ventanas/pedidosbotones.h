// What the buttons of the program ask of the application: sounds to be played and links to be opened.
//
// A sound file is looked for beside the program; when it isn't there, the sound of that name that is compiled
// in takes its place, and without either, or without an audio device, nothing is heard.
#pragma once

#include <QHash>
#include <QObject>
#include <QSoundEffect>

#include <memory>
#include <optional>

class QMediaDevices;

namespace tarvo {

class Escritorio;

class PedidosBotones : public QObject {
    Q_OBJECT
  public:
    // `carpetaPrograma` is the folder that relative paths count from.
    PedidosBotones(Escritorio &escritorio, QString carpetaPrograma);
    ~PedidosBotones() override;

  protected:
    bool eventFilter(QObject *objeto, QEvent *evento) override;

  private:
    // Where the sound of that path lies: a file or a compiled-in resource; empty when there is none.
    QUrl Sonido(const QString &ruta) const;
    void OlvidarAudio();
    void Tocar(const QString &ruta);

    Escritorio &escritorio_;
    QString carpeta_;
    std::unique_ptr<QMediaDevices> dispositivos_; // from the first sound on
    std::optional<bool> hayAudio_;                // until a device comes or goes
    QHash<QString, std::shared_ptr<QSoundEffect>> sonidos_;
};

} // namespace tarvo
