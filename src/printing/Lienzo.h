#pragma once

#include <QPainter>
#include <QRectF>
#include <QString>

namespace impreso {

/// Shapes and type of the official forms. Every length is in millimetres from the page's left edge
/// and, downwards, from the top of the section that draws it; type sizes are in points.

struct Caja
{
    double x, y, ancho, alto;

    constexpr double derecha() const { return x + ancho; }
    constexpr double abajo() const { return y + alto; }
    QRectF rect() const { return {x, y, ancho, alto}; }
    /// The same box with its sides moved inwards.
    constexpr Caja dentro(double dx, double dy) const
    {
        return {x + dx, y + dy, ancho - 2 * dx, alto - 2 * dy};
    }
    constexpr Caja bajada(double dy) const { return {x, y + dy, ancho, alto}; }
};

/// The sheet and what is drawn on it.
inline constexpr double AnchoPagina = 210;
inline constexpr double AltoPagina = 297;
inline constexpr double MargenIzquierdo = 10;
inline constexpr double MargenDerecho = 200;
inline constexpr double AnchoUtil = MargenDerecho - MargenIzquierdo;

/// Place of the copy mark, from the page's corner.
inline constexpr Caja CajaMarca{108, 192.5, 84, 26};

/// Thickness of lines, in millimetres.
namespace Trazo {
inline constexpr double Fino = 0.1;
inline constexpr double Medio = 0.2;
inline constexpr double Grueso = 0.4;
} // namespace Trazo

enum class Letra { Arial, Times };

struct Estilo
{
    Letra letra = Letra::Arial;
    double puntos = 8;
    bool negrita = true;
    QRgb color = 0xff000000;

    constexpr Estilo de(double otrosPuntos) const { return {letra, otrosPuntos, negrita, color}; }
    constexpr Estilo normal() const { return {letra, puntos, false, color}; }
    constexpr Estilo en(QRgb otro) const { return {letra, puntos, negrita, otro}; }
};

/// The forms' one ink, its shades, and black for what is filled in.
namespace Tinta {
inline constexpr QRgb Oscura = 0xff1b3a5c;
inline constexpr QRgb Sombra = 0xffd3dfeb;
inline constexpr QRgb Fondo = 0xffedf2f7;
inline constexpr QRgb Blanco = 0xffffffff;
inline constexpr QRgb Negro = 0xff000000;
} // namespace Tinta

/// In force at the start of every section.
inline constexpr Estilo EstiloInicial{Letra::Arial, 8, true, Tinta::Negro};
/// Printed labels: Basque in bold, Castilian beside it in roman.
inline constexpr Estilo EstiloEtiqueta{Letra::Times, 7, true, Tinta::Oscura};
inline constexpr Estilo EstiloValor{Letra::Arial, 9, false, Tinta::Negro};

/// False on a machine without any typeface, where every text would be left out without a word.
bool hayLetra();

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
