#pragma once

#include <QPaintDevice>
#include <QPaintEngine>

#include <memory>

/// A page in pixels that passes what is drawn on it to an engine of the heir's own.
class PaginaLlana : public QPaintDevice
{
public:
    QPaintEngine *paintEngine() const override { return motor.get(); }

protected:
    /// `ppp`: pixels an inch.
    PaginaLlana(const QSize &tamano, int ppp)
        : m_tamano(tamano)
        , m_ppp(ppp)
    {
    }

    std::unique_ptr<QPaintEngine> motor;

    int metric(PaintDeviceMetric que) const override
    {
        switch (que) {
        case PdmWidth:
            return m_tamano.width();
        case PdmHeight:
            return m_tamano.height();
        case PdmDpiX:
        case PdmDpiY:
        case PdmPhysicalDpiX:
        case PdmPhysicalDpiY:
            return m_ppp;
        case PdmDevicePixelRatio:
            return 1;
        case PdmDevicePixelRatioScaled:
            return static_cast<int>(devicePixelRatioFScale());
        default:
            return QPaintDevice::metric(que);
        }
    }

private:
    QSize m_tamano;
    int m_ppp;
};

/// An engine that takes everything.
class MotorLlano : public QPaintEngine
{
public:
    MotorLlano()
        : QPaintEngine(AllFeatures)
    {
    }
    bool begin(QPaintDevice *) override { return true; }
    bool end() override { return true; }
    Type type() const override { return User; }
};
