#pragma once

#include "core/Busqueda.h"

#include <QFrame>

#include <functional>

class QTreeWidget;

/// List picker laid over a screen: hidden until called. Enter or a double click takes an element,
/// Escape gives up, typing searches by name.
class SelectorLista : public QFrame
{
    Q_OBJECT

public:
    /// `nombre` is that of the list inside.
    SelectorLista(const QString &nombre, QWidget *padre);

    /// Loading again, in another language, keeps the current element.
    void cargar(const ListaCodigos &lista);
    const ListaCodigos &lista() const { return m_lista; }
    void cabecera(const QString &titulo, const QString &nombreAccesible);
    /// Opens at the element with `codigo`, if there is one.
    void abrir(const QString &codigo);

    /// Takes the code and the name of the element chosen.
    std::function<void(const QString &, const QString &)> alElegir;

Q_SIGNALS:
    void cancelado();

protected:
    bool eventFilter(QObject *objeto, QEvent *evento) override;

private:
    void tomar();

    QTreeWidget *m_vista;
    ListaCodigos m_lista;
};
