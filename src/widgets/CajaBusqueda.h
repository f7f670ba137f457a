#pragma once

#include <QLineEdit>

/// The box that shows what is being searched for in a list. It never has the focus: the list keeps
/// it.
class CajaBusqueda : public QLineEdit
{
    Q_OBJECT

public:
    explicit CajaBusqueda(QWidget *padre);

    /// Lays the box over `lugar` of its parent.
    void mostrarEn(const QRect &lugar);
    void vaciar();
    /// Colours the text by whether anything was found.
    void hallado(bool algo);
};
