// Every platform service replaced at once, for a test that needs several.
#pragma once

#include "support/fake_clock.h"
#include "support/fake_desktop.h"
#include "support/fake_files.h"
#include "support/fake_instance.h"
#include "support/fake_paths.h"
#include "support/fake_session.h"
#include "support/fake_tray.h"
#include "support/memory_registry.h"
#include "support/recording_media.h"
#include "support/recording_shell.h"
#include "support/recording_windows.h"
#include "support/scripted_dialogs.h"

struct FakeSystem {
    FakeClock clock;
    FakeFiles files;
    FakePaths paths;
    MemoryRegistry registry;
    FakeSession session;
    FakeDesktop desktop;
    RecordingWindows windows;
    RecordingShell shell;
    RecordingMedia media;
    ScriptedDialogs dialogs;
    FakeInstance instance;
    FakeSessionEnd sessionEnd;
    FakeTray tray;
};
