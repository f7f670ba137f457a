#pragma once

class QWidget;

/// Looks whether another version of the program is published and tells the user: with the version
/// screen when it differs (or when the preferences are open: the user asked), else not at all; with
/// the no-connection screen when the service cannot be reached or understood. The outcome is in
/// cActOnline. Returns when the screen has been closed; a check that is called for while another
/// runs does nothing.
void buscarActualizacion(QWidget *padre = nullptr);
