#pragma once

#include "support/PantallaAbierta.h"

#include <QHeaderView>
#include <QTableView>

/// A screen with a list, whose rows are seen and chosen.
template <class T> struct ListaAbierta : PantallaAbierta<T>
{
    QTableView *grid() const { return this->pantalla->template findChild<QTableView *>(); }
    int filas() const { return grid()->model()->rowCount(); }
    QString celda(int fila, int columna) const
    {
        return grid()->model()->index(fila, columna).data().toString();
    }
    /// All the cells of a row, seen or not, as "a|b|c".
    QString fila(int numero) const
    {
        QStringList celdas;
        for (int i = 0; i < grid()->model()->columnCount(); ++i)
            celdas += celda(numero, i);
        return celdas.join(u'|');
    }
    QPoint lugar(int fila) const
    {
        return grid()->visualRect(grid()->model()->index(fila, 1)).center();
    }
    void elegir(int fila) const
    {
        QTest::mouseClick(grid()->viewport(), Qt::LeftButton, {}, lugar(fila));
    }
    void tecla(Qt::Key tecla, Qt::KeyboardModifiers con = {}) const
    {
        QTest::keyClick(grid(), tecla, con);
    }
    /// Chooses a row and opens it by "Enter", "double click", the "menu" or the button so called.
    void abrirFila(int fila, const char *manera, const char *entrada) const
    {
        elegir(fila);
        if (qstrcmp(manera, "Enter") == 0)
            tecla(Qt::Key_Return);
        else if (qstrcmp(manera, "double click") == 0)
            QTest::mouseDClick(grid()->viewport(), Qt::LeftButton, {}, lugar(fila));
        else if (qstrcmp(manera, "menu") == 0)
            this->manos->elegirEnMenu(*grid(), lugar(fila), entrada);
        else
            this->manos->pulsar(manera);
    }
};
