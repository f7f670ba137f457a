#pragma once

#include <QColor>
#include <QList>
#include <QPaintDevice>
#include <QRectF>
#include <QString>

#include <memory>

/// A paint device that remembers what is drawn on it, in millimetres.
class GrabadorDibujo : public QPaintDevice
{
public:
    struct Texto
    {
        QString texto;
        QRectF caja; ///< advance wide, from the top of the capitals to the baseline
        QColor color;
    };
    struct Recuadro
    {
        QRectF caja;
        bool blanco = false; ///< filled with white
    };

    GrabadorDibujo();
    ~GrabadorDibujo() override;

    QList<Texto> textos;
    QList<Recuadro> recuadros;

    QPaintEngine *paintEngine() const override;

protected:
    int metric(PaintDeviceMetric que) const override;

private:
    std::unique_ptr<QPaintEngine> m_motor;
};
