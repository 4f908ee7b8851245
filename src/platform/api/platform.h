#pragma once

namespace tidewatch::platform {

class Applications;
class JobQueueFactory;
class Clock;
class Desktop;
class FileSystem;
class FrontmostApplication;
class InputActivity;
class Log;
class LoginItem;
class MainLoop;
class Preferences;
class ProcessTermination;
class ProcessMemory;
class Randomness;
class SingleInstance;
class Screens;
class UserNotifications;
class WindowSystem;

/// All platform services, for the composition root to distribute. Owns nothing; the referenced objects must
/// outlive every user.
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
    SingleInstance& singleInstance;
    ProcessTermination& termination;
    Randomness& randomness;
    UserNotifications& notifications;
    ProcessMemory& memory;
    JobQueueFactory& queues;
};

}  // namespace tidewatch::platform
