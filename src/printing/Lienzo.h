#pragma once

#include "printing/Geometria.h"

#include <QPainter>
#include <QString>

namespace impreso {

/// A page on any paint device, in millimetres from its top-left corner, with the shapes that the
/// forms are made of. The painter's state is saved on construction and restored at the end.
///
/// Text is laid out at one large size per face and scaled down, so that a form is the same on every
/// device, whatever its resolution. Text wider than its box is shrunk until it fits.
class Lienzo
{
public:
    explicit Lienzo(QPainter &pintor);
    ~Lienzo();
    Lienzo(const Lienzo &) = delete;
    Lienzo &operator=(const Lienzo &) = delete;

    /// Starts a section: `arriba` becomes the origin of what follows and the type is reset.
    void seccion(double arriba);
    void letra(const Estilo &estilo) { m_estilo = estilo; }
    const Estilo &letra() const { return m_estilo; }

    void linea(double x1, double y1, double x2, double y2, double grueso = Trazo::Fino);
    void marco(const Caja &caja, double grueso = Trazo::Medio);
    void fondo(const Caja &caja, QRgb color);
    /// A white box with a hairline, which hides what is under it.
    void blanca(const Caja &caja, double grueso = Trazo::Fino);
    /// A row of dots from x1 to x2 on the line y.
    void puntos(double x1, double x2, double y);
    void lineaCorte(double y);

    /// One line, in the current type, centred in height. `alineacion`: left, centre or right.
    /// Returns the width drawn.
    double texto(const Caja &caja, const QString &texto,
                 Qt::AlignmentFlag alineacion = Qt::AlignLeft);
    /// Width of a line in the current type.
    double anchoTexto(const QString &texto) const;

    QPainter &pintor() { return m_pintor; }

private:
    QPen pluma(double grueso) const;

    QPainter &m_pintor;
    QTransform m_pagina;
    Estilo m_estilo = EstiloInicial;
};

} // namespace impreso
