#pragma once

namespace tidewatch::platform {

class Applications;
class Background;
class Clock;
class Desktop;
class FileSystem;
class FrontmostApplication;
class InputActivity;
class Log;
class LoginItem;
class MainLoop;
class Preferences;
class ProcessEndings;
class ProcessMemory;
class Randomness;
class RunningInstance;
class Screens;
class UserNotifications;
class WindowSystem;

/// All that the program needs of the machine, for the composition root to hand on. Owns nothing; what it
/// refers to must outlive every user.
struct Platform {
    Log& log;
    Clock& clock;
    MainLoop& mainLoop;
    FileSystem& files;
    Preferences& preferences;
    InputActivity& inputActivity;
    FrontmostApplication& frontmost;
    Applications& applications;
    Desktop& desktop;
    Screens& screens;
    WindowSystem& windowSystem;
    LoginItem& loginItem;
    RunningInstance& runningInstance;
    ProcessEndings& endings;
    Randomness& randomness;
    UserNotifications& notifications;
    ProcessMemory& memory;
    Background& background;
};

}  // namespace tidewatch::platform
