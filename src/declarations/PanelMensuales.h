#pragma once

#include "declarations/cDatos480.h"

#include <QWidget>

class GraficoCuotas;
class QLabel;
class QPushButton;
class QTreeWidget;

/// The exercise's monthly 430 returns: a list by month, the year's totals under it, and a picture
/// of the quotas beside it; or a line that says that there are none.
class PanelMensuales : public QWidget
{
    Q_OBJECT

public:
    explicit PanelMensuales(QWidget *padre = nullptr);

    void cargar(const cDatos480 &registro);
    void Anadir_captions();
    const std::optional<Mensuales430> &anno() const { return m_anno; }
    /// Takes the months' bases into the return.
    QPushButton *boton() const { return m_cmdTomar; }
    QTreeWidget *lista() const { return m_lst430; }

protected:
    bool eventFilter(QObject *objeto, QEvent *evento) override;

private:
    void mostrar();
    void presentarAparte();
    void colocarTotales();

    QLabel *m_titulo;
    QTreeWidget *m_lst430;
    QPushButton *m_cmdTomar;
    QLabel *m_lblNo430;
    QLabel *m_lblAparte; ///< what the button leaves out
    BandasMensuales m_bandas;
    QWidget *m_pie;
    QLabel *m_totales[3]; ///< caption, base and quota, under their columns
    GraficoCuotas *m_grafico;
    std::optional<Mensuales430> m_anno;
};
