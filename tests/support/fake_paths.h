// A program folder in a temporary folder that goes with the test.
#pragma once

#include "platform/paths.h"
#include "support/provided.h"

#include <QFile>
#include <QTemporaryDir>

class FakePaths : public Provided<platform::Paths> {
public:
    QString Program_Folder() override { return folder.path(); }
    QString Shipped_File(const QString& name) override {
        const QString own = folder.filePath(name);
        const QString beside = shipped.filePath(name);
        return !QFile::exists(own) && QFile::exists(beside) ? beside : own;
    }
    QString Executable() override { return shipped.filePath(QStringLiteral("tockly")); }
    // Where files that came with the program lie.
    QString Shipped_Folder() { return shipped.path(); }

private:
    QTemporaryDir folder;
    QTemporaryDir shipped;
};
