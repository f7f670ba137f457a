#pragma once

#include <QProxyStyle>

/// Fusion with flat title bars for the windows inside the main window.
class Estilo : public QProxyStyle
{
    Q_OBJECT

public:
    Estilo();

    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *opcion,
                            QPainter *pintor, const QWidget *widget) const override;
    int pixelMetric(PixelMetric medida, const QStyleOption *opcion,
                    const QWidget *widget) const override;
    int styleHint(StyleHint cual, const QStyleOption *opcion, const QWidget *widget,
                  QStyleHintReturn *resultado) const override;

private:
    void pintarTitulo(const class QStyleOptionTitleBar &barra, QPainter &pintor,
                      const QWidget *widget) const;
    void pintarBoton(const QStyleOptionTitleBar &barra, SubControl boton, QPainter &pintor,
                     const QWidget *widget) const;
};
