#include <korvane/runtime/RuntimeError.h>
#include <korvane/voice/FileSource.h>
#include <korvane/voice/pocketsphinx/PocketSphinx.h>

#include <iostream>

int main() {
    const auto said = std::make_shared<Korvane::voice::FileSource>("said.wav");
    const auto atOnce = [](const std::function<void()>& work) { work(); };
    try {
        Korvane::voice::openPocketSphinx(said, atOnce, "a folder without a model");
    } catch (const Korvane::RuntimeError& e) {
        std::cout << e.Description() << '\n';
        return e.Number() == Korvane::RuntimeError::FileNotFound ? 0 : 1;
    }
    return 1;
}
