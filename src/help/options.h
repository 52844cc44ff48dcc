#pragma once

#include <QString>
#include <optional>

/// What a first argument that begins with "--" asks for: help, the version (with the build's id), the look at
/// the installation, what the desktop's menu opens. Nothing for a call of the ERP's. Else the status to end
/// with.
[[nodiscard]] std::optional<int> atendeOpcao(int argc, char** argv, const QString& compilacao);
