#pragma once

#include "printing/Lienzo.h"
#include "printing/ValoresImpreso.h"

#include <span>

namespace impreso {

/// The pieces that both forms are made of.

/// A label in both languages, exactly as printed: the slash belongs to the Basque text.
struct Par
{
    QStringView euskera;
    QStringView castellano;
};

/// A field of a block: its label and, below it, the white box of its value.
struct Campo
{
    Par etiqueta;
    Caja celda;
    Valor valor = Valor::Ninguno;
};

/// How the labels of a block stand: on one line, or Basque above Castilian.
enum class Forma { UnaLinea, DosLineas };

/// White box of a field.
Caja cajaValor(const Campo &campo, Forma forma);

/// Both languages on one line, the pair aligned as a whole. Returns the width drawn.
double parEnLinea(Lienzo &lienzo, const Caja &caja, const Par &par, const Estilo &estilo,
                  Qt::AlignmentFlag alineacion = Qt::AlignLeft);
/// Basque above Castilian, filling the box's height.
void parApilado(Lienzo &lienzo, const Caja &caja, const Par &par, const Estilo &estilo,
                Qt::AlignmentFlag alineacion = Qt::AlignLeft);

/// A shaded block with a heavy frame.
void bloque(Lienzo &lienzo, const Caja &caja);
/// Labels and empty boxes of the fields of a block.
void campos(Lienzo &lienzo, std::span<const Campo> tabla, Forma forma);
/// What is filled in; `dy` leads from the origin of the labels to the present one.
void valores(Lienzo &lienzo, std::span<const Campo> tabla, Forma forma,
             const ValoresImpreso &impreso, double dy = 0);

/// Place of the small number and of the amount in a numbered box.
Caja cajaNumero(const Caja &caja);
Caja cajaImporte(const Caja &caja);
/// A numbered box, empty; two digits, or the bare number.
void casillaVacia(Lienzo &lienzo, const Caja &caja, const QString &numero);
/// An amount, right-aligned in the white part of a numbered box.
void importe(Lienzo &lienzo, const Caja &caja, const QString &texto);
/// A rate: like an amount, left of the printed "%". Both in the current type.
void signoTipo(Lienzo &lienzo, const Caja &caja);
void tipo(Lienzo &lienzo, const Caja &caja, const QString &texto);

/// A white box to sign or stamp in, with its label.
void hueco(Lienzo &lienzo, const Caja &caja, const Par &etiqueta);

/// A part of a form: where it begins, from the page's top, and what draws it.
struct Parte
{
    double arriba;
    void (*dibujar)(Lienzo &, const ValoresImpreso &);
};

/// Draws the parts of a form on one page and stamps the mark of `copia` (cImOf.h) over them,
/// lighter where it lies over figures.
enum class BajoLaMarca { Papel, Cifras };
void dibujarPartes(QPainter &pintor, std::span<const Parte> partes, const ValoresImpreso &impreso,
                   QStringView copia, BajoLaMarca bajo);

} // namespace impreso
