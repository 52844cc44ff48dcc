#pragma once

#include <gtest/gtest.h>
#include <QString>
#include <QTemporaryDir>

#include "platform/files/contents.h"
#include "platform/files/paths.h"
#include "support/errors.h"

/// A folder that stands for drive C.
class Files : public ::testing::Test {
 protected:
  Files() { qputenv("ZARIM_DRIVE_C", folder_.path().toUtf8()); }
  ~Files() override { qunsetenv("ZARIM_DRIVE_C"); }

  QString on(const QString& path) const { return folder_.filePath(path); }
  QTemporaryDir folder_;
};
