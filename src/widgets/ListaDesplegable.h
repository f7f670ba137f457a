#pragma once

#include "widgets/Confirmable.h"

#include <QComboBox>

#include <functional>

/// A drop-down list that can also be typed in, in capitals, but takes only its own entries.
class ListaDesplegable : public QComboBox, public Confirmable
{
    Q_OBJECT

public:
    explicit ListaDesplegable(const QString &nombre, QWidget *padre = nullptr);

    /// Takes the position of the entry that the user chose or typed; -1 for an emptied box.
    std::function<void(int)> alElegir;
    /// Tells the user that what was typed is not in the list.
    std::function<void()> alRechazar;

    /// Opens the list whenever the focus arrives. Tab takes the entry under the cursor and goes on.
    void desplegarAlEntrar() { m_despliega = true; }
    void entradas(const QStringList &textos);
    /// Shows an entry of the program's choice, -1 for none; nothing is pending afterwards.
    void mostrarEntrada(int posicion);

    bool confirmar() override;
    bool pendiente() const override { return m_pendiente; }
    void descartar() override;

protected:
    void focusInEvent(QFocusEvent *evento) override;
    void focusOutEvent(QFocusEvent *evento) override;
    void hideEvent(QHideEvent *evento) override;
    bool eventFilter(QObject *objeto, QEvent *evento) override;

private:
    void rechazar();
    void salirDeLaLista(bool adelante);

    bool m_despliega = false;
    int m_mostrada = -1; ///< the entry last shown or taken
    bool m_pendiente = false;
    bool m_confirmando = false;
};
