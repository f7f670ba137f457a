#pragma once

#include <QWidget>

class QLineEdit;
class QListWidget;
class QTabWidget;
class QTextBrowser;
class QToolButton;

namespace ayuda {
struct Entrada;
}

/// The help window: contents, index and search on the left, the topic on the right. There is one
/// at most; it stays usable in front of a modal screen.
class FrmAyuda : public QWidget
{
    Q_OBJECT

public:
    /// Opens the window, or brings it forward, at a topic ("frmdatos430.htm").
    static void mostrar(const QString &tema);

protected:
    void changeEvent(QEvent *evento) override;
    void keyPressEvent(QKeyEvent *evento) override;

private:
    explicit FrmAyuda(QWidget *padre);

    QListWidget *lista(const QString &nombre);
    QLineEdit *caja(const QString &nombre);
    QToolButton *boton(const QString &nombre, Qt::ArrowType flecha);
    void disponer();
    void Anadir_captions();
    void nombrar();
    void llenar();
    void filtrarIndice();
    void buscar();
    void ir(const QString &tema);

    QTabWidget *m_tabAyuda;
    QListWidget *m_lstContenido, *m_lstIndice, *m_lstResultados;
    QLineEdit *m_txtIndice, *m_txtBuscar;
    QTextBrowser *m_txtTema;
    QToolButton *m_cmdAtras, *m_cmdAdelante;
};
