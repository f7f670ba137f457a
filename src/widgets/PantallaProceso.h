#pragma once

#include "widgets/PantallaBase.h"

class QLabel;
class QProgressBar;
class QVBoxLayout;

/// Base of the screens that work through the lines of a file: while they do, events are let
/// through, everything but the button that stops it is disabled, and the screen cannot be closed.
class PantallaProceso : public PantallaBase
{
    Q_OBJECT

public:
    bool edita() const override { return m_trabajando; }
    bool trabaja() const override { return m_trabajando; }
    void Anadir_captions() override;

protected:
    explicit PantallaProceso(const QString &nombre, QWidget *padre);

    /// What is disabled meanwhile.
    QWidget *contenido() const { return m_contenido; }

    /// A file that is dragged onto the screen is handed to `tomar`.
    void recibirFicheros(std::function<void(const QString &)> tomar);
    /// Runs `trabajo`, which calls paso() every few lines of `total`; the bar is shown only when
    /// there are more than `pocas`. False when an exception ended it, which the user has been told.
    bool trabajar(qint64 total, const std::function<void()> &trabajo, qint64 pocas = 500);
    /// Shows how far it has come, in the words of `texto`; false when it is to stop.
    bool paso(qint64 linea, Msj texto = Msj::ProgresoLinea);
    bool detenido() const { return m_detener; } ///< the last work, by the user

    void closeEvent(QCloseEvent *evento) override;
    void dragEnterEvent(QDragEnterEvent *evento) override;
    void dropEvent(QDropEvent *evento) override;

private:
    void ocupar(bool trabajando);

    std::function<void(const QString &)> m_recibir;
    QWidget *m_contenido;
    QWidget *m_fraProgreso;
    QProgressBar *m_prgProgreso;
    QLabel *m_lblProgreso;
    QPushButton *m_cmdDetener;
    qint64 m_total = 0;
    bool m_trabajando = false;
    bool m_detener = false;
};
