#pragma once

#include <QMargins>
#include <QString>

class QFrame;
class QLabel;
class QTableView;
class QWidget;

// The pieces that the screens are laid out with.

/// Around what a framed screen holds, and what a dialogue holds, in pixels.
inline constexpr QMargins MargenPantalla(16, 14, 16, 14);
inline constexpr QMargins MargenDialogo(26, 24, 26, 22);

/// A label of plain text called `nombre`; `de` is the control that its access key leads to.
QLabel *nuevaEtiqueta(const QString &nombre, QWidget *padre, QWidget *de = nullptr);
/// The letter of `control`, `aumento` times as large.
void agrandarLetra(QWidget *control, double aumento);
/// A horizontal line.
QFrame *nuevaRaya(QWidget *padre);

/// Rows selected one at a time, nothing edited, no grid.
void prepararTabla(QTableView *tabla);
/// The same with several rows at once. Ctrl+Home and Ctrl+End select the row that they go to, as
/// where one row is selected at a time.
void prepararTablaDeVarias(QTableView *tabla);

/// Gives an access key to every label and button of `pantalla` that has none, all different from
/// each other, from those written in the texts and from the menus of the main window.
void repartirAccesos(QWidget *pantalla);
