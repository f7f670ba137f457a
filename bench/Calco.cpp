#include "Calco.h"

#include <QPainter>
#include <QPainterPath>

namespace {

class Motor : public MotorLlano
{
public:
    explicit Motor(QList<Calco::Llamada> &llamadas)
        : m_llamadas(llamadas)
    {
    }

    void updateState(const QPaintEngineState &estado) override
    {
        const auto cambios = estado.state();
        if (cambios & DirtyTransform)
            anotar([t = estado.transform()](QPainter &p) { p.setTransform(t); });
        if (cambios & DirtyPen)
            anotar([pluma = estado.pen()](QPainter &p) { p.setPen(pluma); });
        if (cambios & DirtyBrush)
            anotar([brocha = estado.brush()](QPainter &p) { p.setBrush(brocha); });
        if (cambios & DirtyFont)
            anotar([fuente = estado.font()](QPainter &p) { p.setFont(fuente); });
    }
    void drawPath(const QPainterPath &camino) override
    {
        anotar([camino](QPainter &p) { p.drawPath(camino); });
    }
    void drawRects(const QRectF *rectas, int cuantas) override
    {
        for (int i = 0; i < cuantas; ++i)
            anotar([una = rectas[i]](QPainter &p) { p.drawRect(una); });
    }
    void drawLines(const QLineF *lineas, int cuantas) override
    {
        for (int i = 0; i < cuantas; ++i)
            anotar([una = lineas[i]](QPainter &p) { p.drawLine(una); });
    }
    void drawTextItem(const QPointF &base, const QTextItem &item) override
    {
        anotar([base, texto = item.text()](QPainter &p) { p.drawText(base, texto); });
    }
    void drawPixmap(const QRectF &lugar, const QPixmap &imagen, const QRectF &parte) override
    {
        anotar([=](QPainter &p) { p.drawPixmap(lugar, imagen, parte); });
    }

private:
    void anotar(Calco::Llamada llamada) { m_llamadas.append(std::move(llamada)); }

    QList<Calco::Llamada> &m_llamadas;
};

} // namespace

// QPdfWriter's own: an A4 page of 1200 ppi
Calco::Calco()
    : PaginaLlana({9921, 14031}, 1200)
{
    motor = std::make_unique<Motor>(llamadas);
}
