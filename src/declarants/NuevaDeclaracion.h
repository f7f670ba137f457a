#pragma once

#include "core/Textos.h"

#include <QFrame>

class CajaTexto;
class ListaDesplegable;
class QLabel;

/// The frame in which the exercise, model and period of a new return are chosen; it edits the
/// header cDecResumen.
class NuevaDeclaracion : public QFrame
{
    Q_OBJECT

public:
    explicit NuevaDeclaracion(QWidget *padre);

    void Anadir_captions();
    /// Shows the header.
    void PresentaDatos();
    /// The months again, in the language that is now in force.
    void alCambiarIdioma();
    /// To the first field that the proposal leaves empty, else to the exercise.
    void enfocarPrimero();
    /// To the field of a code of ValidarDatosComunes.
    void enfocar(qint16 codigo);

private:
    void disponer();
    bool tomarEjercicio();
    void tomarModelo(int posicion);
    void tomarPeriodo(int posicion);
    void rechazar(Msj motivo);
    void cargarPeriodos();
    void PresentaFaltan();

    CajaTexto *m_txtejer;
    ListaDesplegable *m_cmbmodelo;
    ListaDesplegable *m_cmbperiodo;
    QLabel *m_lblejer;
    QLabel *m_lblmodelo;
    QLabel *m_lblperiodo;
    QLabel *m_lblFaltan; ///< earlier months without a return
    QLabel *m_lblGuia;
};
