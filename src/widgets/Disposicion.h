#pragma once

#include <QList>
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
/// Tab goes through these controls one after the other.
void enlazarTab(const QList<QWidget *> &controles);
/// The letter of `control`, `aumento` times as large.
void agrandarLetra(QWidget *control, double aumento);
/// What `lista` says in its middle while it has no rows; the screen fills it and shows it.
QLabel *nuevoVacio(QTableView *lista);
/// A horizontal line.
QFrame *nuevaRaya(QWidget *padre);

/// Rows selected one at a time, nothing edited, no grid.
void prepararTabla(QTableView *tabla);
/// The same with several rows at once, once it has its model. Ctrl+Home and Ctrl+End select the row
/// that they go to, as where one row is selected at a time; the tip of a cell is its text when it
/// is cut off.
void prepararTablaDeVarias(QTableView *tabla);

/// Gives an access key to every label and button of `pantalla` that has none, all different from
/// each other, from those written in the texts and from the menus of the main window.
void repartirAccesos(QWidget *pantalla);
