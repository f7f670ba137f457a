#pragma once

#include <QList>
#include <QPaintDevice>

#include <functional>
#include <memory>

class QPainter;

/// A paint device of the size and resolution of a PDF's page that remembers what is drawn on it as
/// plain calls of QPainter.
class Calco : public QPaintDevice
{
public:
    using Llamada = std::function<void(QPainter &)>;

    Calco();
    ~Calco() override;

    QList<Llamada> llamadas;

    QPaintEngine *paintEngine() const override;

protected:
    int metric(PaintDeviceMetric que) const override;

private:
    std::unique_ptr<QPaintEngine> m_motor;
};
