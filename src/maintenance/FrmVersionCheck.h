#pragma once

#include "widgets/PantallaBase.h"

class QGroupBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;

/// Shows the published version beside the program's own, as cActOnline holds them, and opens the
/// download page in the browser.
class FrmVersionCheck : public PantallaBase
{
    Q_OBJECT

public:
    explicit FrmVersionCheck(QWidget *padre = nullptr);

    void Anadir_captions() override;
    /// Opens `direccion` through a temporary page that posts a form to it; the user is told when it
    /// is no web address or there is no browser.
    void LanzarExplorador(const QString &direccion);

private:
    void disponer();
    void PresentaDatos();

    QGroupBox *m_fraVersion;
    QList<QLabel *> m_rotulos;
    QLabel *m_lblActual, *m_lblDisponible;
    QPlainTextEdit *m_txtInfo;
    QLineEdit *m_txtUrl, *m_txtPath;
    QPushButton *m_cmdActualizar, *m_cmdContinuar;
};
