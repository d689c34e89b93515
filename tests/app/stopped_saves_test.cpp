// Every save, stopped at every single file operation: by the end of the process, and by operations
// that fail, once or from then on. Whatever happens, each file is the old or the new one, the user
// hears what was not saved, and nothing is left lying about.
#include "app/application.h"
#include "app/background_save.h"
#include "core/categories.h"
#include "core/remind_again.h"
#include "core/reminder_store.h"
#include "failing_disk.h"
#include "links/store/link_rec.h"
#include "notes/notes_store.h"
#include "settings/account.h"
#include "settings/global_settings.h"
#include "support/fake_system.h"

#include <QCoreApplication>
#include <QFile>
#include <gtest/gtest.h>

#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <map>
#include <set>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
namespace fs = std::filesystem;

namespace {

using Files = std::map<std::string, std::string>; // by path inside the folder

// Boxes that are heard and answered by nobody.
struct Listener : ScriptedDialogs {
    void Show_Message(const QString& text, const platform::BoxLook&) override {
        notices.append(text);
    }
};

constexpr auto Others = fs::perms::group_all | fs::perms::others_all;

struct Way {
    int error; // 0: the process ends
    bool forGood;
    std::string Name() const {
        return error == 0 ? "ended"
                          : strerrorname_np(error) + std::string(forGood ? " on" : " once");
    }
};

constexpr std::array Ways{Way{0, false},  Way{ENOSPC, false}, Way{ENOSPC, true}, Way{EIO, false},
                          Way{EIO, true}, Way{EACCES, false}, Way{EACCES, true}};

// The sanitizers make each process dear: there every operation is hit in one of the ways.
#ifdef __SANITIZE_ADDRESS__
constexpr int Stride = static_cast<int>(Ways.size());
#else
constexpr int Stride = 1;
#endif

class StoppedSaves : public testing::Test {
protected:
    StoppedSaves() {
        umask(077);
        platform::Files::Provide(files.get());
        qputenv("TOCKLY_REGISTRY", Path("registry").c_str());
        platform::Registry::Provide(registry.get());
        fs::create_directories(Path("far"));
        fs::create_directories(Path("User-1"));
        fs::create_symlink("../far/notes.dat", Path("User-1/notes.dat"));
        {
            Application first;
            EXPECT_TRUE(first.Load());
            Fill(u"old"_s);
            first.End(platform::EndReason::Asked);
        }
        program = std::make_unique<Application>();
        EXPECT_TRUE(program->Load());
        Fill(u"changed"_s);
        std::snprintf(Disk_Orders()->folder.data(), Disk_Orders()->folder.size(), "%s",
                      Path("").c_str());
    }
    ~StoppedSaves() override {
        Disk_Orders()->folder[0] = 0;
        program->End(platform::EndReason::Asked);
        program.reset();
        platform::Registry::Provide(&system.registry);
        platform::Files::Provide(&system.files);
    }

    std::string Path(const std::string& name) {
        return (system.paths.Program_Folder() + u'/').toStdString() + name;
    }
    // More of everything than before.
    static void Fill(const QString& word) {
        for (int number = 0; number < 3; ++number) {
            ReminderSlot& slot =
                Global_Reminders[static_cast<std::size_t>(Take_FreeReminderSlot())];
            slot = {true, false, std::make_unique<ReminderClass>()};
            slot.Reminder->rs_ID = Get_NewReminderID(slot.Reminder->rs_ID2);
            slot.Reminder->rs_Title = word;
            slot.Reminder->rs_Category = word;
            Add_RA_Reminder(slot.Reminder->rs_ID, slot.Reminder->rs_ID2, 9999, number);
        }
        Sync_CategoriesFromReminders();
        Global_LinkArray.insert(Global_LinkArray.begin(), {u"0http://"_s + word, word, {}, 0, 0});
        Global_Notes.push_back({true, word, word, 1, 1, 1, 0});
        Global_Autohide_WaitTime += 1000;
        Global_TopForm = !Global_TopForm;
        ++Global_MaxAccountID;
    }

    Files Look() {
        Files found;
        for (const auto& entry : fs::recursive_directory_iterator(Path(""))) {
            const std::string name = entry.path().string().substr(Path("").size());
            if (entry.is_symlink()) {
                found[name] = "-> " + fs::read_symlink(entry.path()).string();
            } else if (entry.is_regular_file()) {
                std::ifstream file(entry.path(), std::ios::binary);
                found[name].assign(std::istreambuf_iterator<char>(file), {});
            }
        }
        return found;
    }
    // The files as they stand are those to begin with. Links, so that the program knows them again.
    void Keep() {
        old = Look();
        fs::remove_all(store.path().toStdString());
        for (const auto& [name, bytes] : old) {
            const fs::path kept = Kept(name);
            fs::create_directories(kept.parent_path());
            fs::is_symlink(Path(name)) ? fs::copy_symlink(Path(name), kept)
                                       : fs::create_hard_link(Path(name), kept);
        }
    }
    void Restore() {
        fs::remove_all(Path("User-9"));
        for (const auto& [name, bytes] : Look()) {
            fs::remove(Path(name));
        }
        for (const auto& [name, bytes] : old) {
            fs::is_symlink(Kept(name)) ? fs::copy_symlink(Kept(name), Path(name))
                                       : fs::create_hard_link(Kept(name), Path(name));
        }
    }
    std::string Kept(const std::string& name) {
        return store.filePath(u"k/"_s).toStdString() + name;
    }
    void Put(const std::string& name, const std::string& bytes) {
        fs::remove(Path(name));
        std::ofstream(Path(name), std::ios::binary) << bytes;
        fs::permissions(Path(name), fs::perms::owner_read | fs::perms::owner_write);
    }

    // Carries out a save in a process of its own. False: it ended before the operation.
    bool Is_Hit(const std::function<void()>& save, int operation, Way way) {
        DiskOrders& orders = *Disk_Orders();
        const pid_t child = fork();
        if (child == 0) {
            dialogs.notices.clear();
            orders.error = way.error;
            orders.forGood = way.forGood;
            orders.operations = 0;
            orders.at = operation;
            save();
            orders.at = 0;
            std::ofstream(Kept("../said")) << dialogs.notices.join(u'\n').toStdString();
            _exit(0);
        }
        int status = 0;
        waitpid(child, &status, 0);
        orders.at = 0;
        const bool isHit = operation > 0 && orders.operations >= operation;
        if (isHit && way.error == 0) {
            EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL);
        } else {
            EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << status;
        }
        std::ifstream file(Kept("../said"));
        said.assign(std::istreambuf_iterator<char>(file), {});
        fs::remove(Kept("../said"));
        return isHit;
    }

    // What stands on the disk, and after the sweep of the next start.
    void Check(const Files& wanted, bool tells, const std::map<std::string, std::string>& words) {
        for (const auto& entry : fs::recursive_directory_iterator(Path(""))) {
            EXPECT_TRUE(entry.is_symlink() ||
                        (entry.status().permissions() & Others) == fs::perms::none)
                << entry.path() << " can be read by others";
        }
        // What was begun for a user is not taken for another's.
        EXPECT_FALSE(Account_Is_Taken(system.paths.Program_Folder(), 9));
        for (const char* folder : {"", "User-1", "User-9", "registry"}) {
            files->Sweep(QString::fromStdString(Path(folder)));
        }
        const Files found = Look();
        std::set<std::string> names;
        for (const Files* each : {static_cast<const Files*>(&old), &wanted, &found}) {
            for (const auto& [name, bytes] : *each) {
                names.insert(name);
            }
        }
        const auto In = [](const Files& all, const std::string& name) {
            const auto at = all.find(name);
            return at == all.end() ? "(none)" : at->second;
        };
        for (const std::string& name : names) {
            const std::string is = In(found, name);
            EXPECT_TRUE(is == In(old, name) || is == In(wanted, name)) << name << ": " << is;
            // The others' bytes are kept before they are replaced.
            const std::string kept =
                (name == "far/notes.dat" ? "User-1/notes.dat" : name) + ".other";
            if (wanted.contains(kept) && is != In(old, name)) {
                EXPECT_EQ(In(found, kept), In(old, name)) << name;
            }
        }
        for (const auto& [name, line] : words) {
            if (tells) {
                EXPECT_EQ(said.find(line) != said.npos, In(found, name) != In(wanted, name))
                    << name << ", said: " << said;
            }
        }
    }

    void Stop_Everywhere(const char* what, const std::function<void()>& save,
                         const std::map<std::string, std::string>& words) {
        const auto begun = std::chrono::steady_clock::now();
        Keep();
        EXPECT_FALSE(Is_Hit(save, 0, {0, false}));
        const Files wanted = Look();
        EXPECT_NE(wanted, old);
        int points = 0;
        int stops = 0;
        for (std::size_t at = 0; at < Ways.size(); ++at) {
            const Way way = Ways[at];
            for (int operation = 1 + static_cast<int>(at) % Stride; true; operation += Stride) {
                Restore();
                const bool isHit = Is_Hit(save, operation, way);
                SCOPED_TRACE(std::string(what) + ", " + way.Name() + " at " +
                             std::to_string(operation) + ", " + Disk_Orders()->hit.data());
                Check(wanted, way.error != 0, words);
                if (!isHit) {
                    break;
                }
                points = std::max(points, operation);
                ++stops;
            }
        }
        Restore();
        const std::chrono::duration<double> passed = std::chrono::steady_clock::now() - begun;
        std::cout << what << ": " << points << " file operations, stopped " << stops << " times, "
                  << passed.count() << " s\n";
        EXPECT_GT(points, 20);
    }

    // A file system on a disk writes at each of the renames.
    const bool inMemory = fs::exists("/dev/shm") && qputenv("TMPDIR", "/dev/shm");
    FakeSystem system;
    std::unique_ptr<platform::Files> files = platform::Make_Files();
    std::unique_ptr<platform::Registry> registry = platform::Make_Registry();
    Listener dialogs;
    QTemporaryDir store;
    std::unique_ptr<Application> program;
    Files old;
    std::string said;
};

const std::map<std::string, std::string> WordsAtEnd{
    {"User-1/reminders.dat", "Error saving reminders"},
    {"User-1/links.dat", "Error saving links"},
    {"far/notes.dat", "Error saving notes"},
};

std::map<std::string, std::string> Words_Beside() {
    auto words = WordsAtEnd;
    words["User-1/rareminders.dat"] = "Error saving the reminders to come again";
    words["User-1/rcategories.txt"] = "Error saving categories";
    return words;
}

} // namespace

TEST_F(StoppedSaves, Every_File_Is_The_Old_Or_The_New_One) {
    const auto Beside = [this] {
        program->Background()->Begin();
        while (program->Background()->Is_Passing()) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
    };
    const auto AtEnd = [this] { program->Unload(); };
    umask(022); // the files had less
    Stop_Everywhere("beside the interface", Beside, Words_Beside());
    Stop_Everywhere("at the end", AtEnd, WordsAtEnd);
    for (const char* name : {"reminders.dat", "rareminders.dat", "links.dat", "rcategories.txt"}) {
        Put(std::string("User-1/") + name, "somebody else's");
    }
    Put("far/notes.dat", "somebody else's");
    Stop_Everywhere("at the end, over what others wrote", AtEnd, WordsAtEnd);
}

TEST_F(StoppedSaves, So_Are_Those_Of_A_Start) {
    fs::remove(Path("runagain.txt"));
    fs::remove(Path("User-1/Ada"));
    Put("User-1/reminders.bak", "old");
    Stop_Everywhere("at the start",
                    [this] {
                        const QString folder = system.paths.Program_Folder();
                        Load_RA_Options(folder + u"/runagain.txt"_s);
                        Open_Account(folder, 9);
                        Open_Account(folder, 1);
                        Load_AccountReminders(Global_UserPath, {});
                    },
                    {});
}
