// kirto-monkey: does so many random things to the editor's windows, and tells how long they kept it
// waiting. Runs offscreen unless told otherwise; its home folder and its working folder are to be
// of its own.
#include <CLI/CLI.hpp>
#include <QApplication>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <thread>

#include "monkey.h"
#include "ui/shell/editor_style.h"

namespace {

constexpr std::chrono::seconds kHangs{120};
constexpr uint64 kMemoryOfFrames = uint64{256} << 20;

struct MonkeyWishes {
    uint32 seed = 1;
    int64 actions = 1000;
    double longest = 0;  // milliseconds; 0: any
    std::vector<std::string> files;
};

int ParseWishes(int argc, char** argv, MonkeyWishes* wishes) {
    CLI::App app("Does random things to the editor's windows.", "kirto-monkey");
    app.add_option("--seed", wishes->seed, "Which things");
    app.add_option("--actions", wishes->actions, "How many");
    app.add_option("--longest", wishes->longest, "Milliseconds that windows may take to answer");
    app.add_option("files", wishes->files, "What may be opened")->required();
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? 0 : 2;
    }
    return -1;
}

// Ends the program where the monkey does nothing anymore.
class HangWatch {
  public:
    explicit HangWatch(const kirto::Monkey& monkey) : thread_([this, &monkey] { Watch(monkey); }) {}
    ~HangWatch() {
        over_ = true;
        thread_.join();
    }

  private:
    void Watch(const kirto::Monkey& monkey) {
        std::string last;
        auto since = std::chrono::steady_clock::now();
        while (!over_) {
            std::this_thread::sleep_for(std::chrono::milliseconds(20));
            const std::string doing = monkey.Doing();
            const auto now = std::chrono::steady_clock::now();
            if (doing != last) {
                last = doing;
                since = now;
            } else if (now - since > kHangs) {
                std::fprintf(stderr, "kirto-monkey: the windows hang at: %s\n", last.c_str());
                std::abort();
            }
        }
    }

    std::atomic<bool> over_ = false;
    std::thread thread_;
};

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", qEnvironmentVariable("QT_QPA_PLATFORM", "offscreen").toLocal8Bit());
    QApplication application(argc, argv);
    MonkeyWishes wishes;
    if (const int status = ParseWishes(argc, argv, &wishes); status >= 0) return status;
    QApplication::setStyle(new kirto::EditorStyle("fusion"));
    QApplication::setQuitOnLastWindowClosed(false);
    double longest = 0;
    {
        kirto::DrivenEditor editor;
        editor.Application().pixel_budget->SetLimit(kMemoryOfFrames);
        kirto::Monkey monkey(editor, wishes.files, wishes.seed);
        const HangWatch watch(monkey);
        monkey.Act(wishes.actions);
        for (const kirto::Monkey::Wait& wait : monkey.LongestWaits()) {
            std::printf("%8.1f ms  %s\n", wait.milliseconds, wait.action.c_str());
            longest = std::max(longest, wait.milliseconds);
        }
        std::printf("seed %u, %lld actions, longest wait %.1f ms\n", wishes.seed,
                    static_cast<long long>(monkey.Done()), longest);
    }
    return wishes.longest > 0 && longest > wishes.longest ? 1 : 0;
}
