#pragma once

#include <QToolBar>

/// The tool bar of the main window: small pictures have their texts beside them, large ones below.
/// Where the texts do not fit next to each other they are set smaller, and then left to the tips,
/// so that every button can be reached.
class BarraHerramientas : public QToolBar
{
public:
    explicit BarraHerramientas(QWidget *padre);

    /// To be called when the texts have changed.
    void acomodar();

protected:
    void resizeEvent(QResizeEvent *evento) override;

private:
    bool cabe(double aumento, Qt::ToolButtonStyle estilo);

    double m_puntos; ///< size of its letter
};
