#pragma once

#include <QDir>
#include <QWidget>

#include <cstdio>
#include <functional>

namespace Apps {

/// A tour drives an application's real window with key presses and clicks, and leaves a picture of each step.
/// Its steps work on a journey: what the tour has at hand.
template <typename Journey>
struct Step {
    const char* title; ///< named where it fails
    void (*run)(Journey&);
};

/// Runs a tour in a directory, which is made when it is not there. What is not as it should be (any
/// exception), or takes too long, stops it and is named on standard error with the title of the step at hand.
/// 0 when all went well, else 1. Needs an application object.
///
///     runTour("tour", [](const QDir& directory, const char*& title) { ... });
///
/// Before anything is shown, what would make the pictures of two runs differ is settled: the time, the style,
/// the font, blinking and fading.
int runTour(const QString& directory, const std::function<void(const QDir&, const char*& title)>& drive);

/// Shows the window and waits until it is active. Raises a `Failure` when it does not become so.
void showActive(QWidget& window);

/// Runs the steps in their order, and prints the title of each that went well.
template <typename Journey, typename Steps>
void travel(Journey& journey, const Steps& steps, const char*& title) {
    for (const Step<Journey>& step : steps) {
        title = step.title;
        step.run(journey);
        std::printf("ok  %s\n", title);
        std::fflush(stdout);
    }
}

} // namespace Apps
