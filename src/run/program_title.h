#pragma once

/// Stands above boxes and begins the titles of the windows.
inline constexpr const char16_t* kTitulo = u"Zarim 1.2";
