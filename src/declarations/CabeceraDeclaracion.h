#pragma once

#include <QWidget>

class CajaTexto;
class QLabel;

/// Head of every entry screen: whose return it is, and its exercise and period. Nothing in it can
/// be changed.
class CabeceraDeclaracion : public QWidget
{
    Q_OBJECT

public:
    explicit CabeceraDeclaracion(QWidget *padre = nullptr);

    /// Texts and values from the header, in the session's language.
    void mostrar();

private:
    QLabel *m_lbldni;
    QLabel *m_lblnombre;
    QLabel *m_lblejer;
    CajaTexto *m_txtejer;
    QLabel *m_lblper;
    CajaTexto *m_txtper;
    QLabel *m_lblperiodo;
};
