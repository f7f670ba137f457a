#pragma once

#include "app/TablaMenus.h"

#include <QHash>
#include <QObject>

class QAction;
class QMainWindow;
class QMenu;
class BarraHerramientas;

/// What decides whether an entry can be used.
struct Situacion
{
    bool editando = false; ///< an open screen owns its record
    bool trabajando = false; ///< an open screen is in the middle of a long work
    bool hayDeclarantes = false;
    QString motivoSinDeclarantes; ///< why not
};

/// The menus and the tool bar of the main window, made from their tables.
class Menus : public QObject
{
    Q_OBJECT

public:
    explicit Menus(QMainWindow *ventana);

    QMenu *menu(int posicion) const { return m_desplegables.at(posicion); }
    void Anadir_captions();
    void aplicar(const Situacion &situacion);

Q_SIGNALS:
    void pedido(const Destino &destino);

private:
    void crearMenus(QMainWindow *ventana);
    void crearBarra(QMainWindow *ventana);

    QList<QMenu *> m_desplegables;
    QHash<QLatin1StringView, QAction *> m_acciones; ///< by the names of the table
    BarraHerramientas *m_barra = nullptr;
    Situacion m_situacion;
};

/// Enables an action and gives it its tip; `motivo`, when not empty, disables it and is the tip.
void habilitar(QAction *accion, const QString &motivo, const QString &pista);
