#pragma once

class QWidget;

/// Gives an access key to every label and button of `pantalla` that has none, all different from
/// each other, from those written in the texts and from the menus of the main window.
void repartirAccesos(QWidget *pantalla);
