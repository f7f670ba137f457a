#pragma once

#include <QString>

#include <memory>

class QPrinter;
class QWidget;
class TrabajoImpresion;

/// The one printer of a print screen, from its set-up through the preview to the printing.
class SalidaImpresora
{
public:
    SalidaImpresora();
    ~SalidaImpresora();
    SalidaImpresora(const SalidaImpresora &) = delete;
    SalidaImpresora &operator=(const SalidaImpresora &) = delete;

    /// Whether the platform has any printer installed.
    static bool hayImpresoras();

    /// Chooses an installed printer by name; false when there is none called so.
    bool elegir(const QString &nombre);
    QString nombre() const;

    /// The platform's printer dialogue.
    void opciones(QWidget *padre);
    /// The copies on screen.
    void vistaPrevia(QWidget *padre, TrabajoImpresion &trabajo);
    /// Every copy as a document of its own; false when the printer did not take one.
    bool imprimir(TrabajoImpresion &trabajo);

private:
    void preparar(const TrabajoImpresion &trabajo);

    std::unique_ptr<QPrinter> m_impresora;
};
