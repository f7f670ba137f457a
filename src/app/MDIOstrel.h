#pragma once

#include "app/TablaMenus.h"

#include <QMainWindow>

class Menus;
class Pantallas;
class QLabel;
class Recientes;

/// The main window: menus and tool bar lead to the screens, which open inside it.
class MDIOstrel : public QMainWindow
{
    Q_OBJECT

public:
    explicit MDIOstrel(QWidget *padre = nullptr);
    ~MDIOstrel() override;

    /// Sets every text in the session's language.
    void Anadir_captions();
    /// Takes the session's language to every window and screen; called after a change of it.
    void CambiarIdioma();

protected:
    void changeEvent(QEvent *evento) override;
    void closeEvent(QCloseEvent *evento) override;

private:
    void conectar();
    void atender(const Destino &destino);
    void cumplir(Mando mando);
    void nuevoDeclarante();
    void listaDeclarantes(const QString &modo);
    void verReciente(qint32 csco, const QString &dni, const QString &nombre);
    void DescargarTodosLosFormularios();
    void mostrarEnEstado(const QString &texto, bool pasajera);
    void alCambiarDatos();
    void asistencia(bool descripcion);
    void restaurar();
    void copiaDelDia();
    void buscarSiSeAplazo();
    void actualizarEstados();

    Menus *m_menus;
    Recientes *m_recientes;
    Pantallas *m_pantallas;
    QLabel *m_estado; ///< what was last done
    QLabel *m_version;
    bool m_algoGuardado = false; ///< since the start or the last restore
};
