#pragma once

namespace tidewatch::platform {

class Applications;
class JobQueueFactory;
class Clock;
class Desktop;
class DiskVolumes;
class FileSystem;
class FrontmostApplication;
class HttpClient;
class InputActivity;
class Log;
class LoginItem;
class MachineCounters;
class MainLoop;
class Preferences;
class ProcessTermination;
class ProcessMemory;
class Randomness;
class RunningApplications;
class SingleInstance;
class Screens;
class Trash;
class UserFolders;
class UserNotifications;
class VolumeEjection;
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
    MachineCounters& counters;
    DiskVolumes& volumes;
    VolumeEjection& ejection;
    RunningApplications& running;
    HttpClient& http;
    UserFolders& userFolders;
    Trash& trash;
};

}  // namespace tidewatch::platform
