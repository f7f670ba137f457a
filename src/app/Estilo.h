#pragma once

/// Style, palette and letter size of the whole program.
void aplicarEstilo();
