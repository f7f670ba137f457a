#pragma once

#include "declarants/cDecLista.h"

#include <QObject>

class QAction;
class QMenu;

/// The entries d1 to d4 at the end of a menu: the declarants last worked on.
class Recientes : public QObject
{
    Q_OBJECT

public:
    explicit Recientes(QMenu *menu);

    /// Reads the list again.
    void cargar();
    /// `motivo`, when not empty, disables the entries.
    void aplicar(const QString &motivo);

Q_SIGNALS:
    void elegido(qint32 csco, const QString &dni, const QString &nombre);

private:
    QList<QAction *> m_entradas;
    QList<DeclaranteReciente> m_declarantes;
};
