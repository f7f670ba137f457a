#pragma once

#include "declarations/cDatos480.h"

#include <QWidget>

/// A bar for each month's quota, in the colours of the palette; the figures are its accessible
/// text.
class GraficoCuotas : public QWidget
{
    Q_OBJECT

public:
    explicit GraficoCuotas(QWidget *padre = nullptr);

    void mostrar(const Mensuales430 &anno, int ejercicio);
    QSize sizeHint() const override { return {260, 170}; }
    QSize minimumSizeHint() const override { return {180, 120}; }

protected:
    void paintEvent(QPaintEvent *evento) override;
    bool event(QEvent *evento) override;

private:
    QRectF barra(int mes) const;
    QString textoMes(int mes) const;

    Mensuales430 m_anno;
    double m_maximo = 0; ///< highest bar, cents; at least 0
    double m_minimo = 0; ///< lowest bar, cents; at most 0
};
