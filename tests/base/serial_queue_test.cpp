// Most useful under the thread sanitizer.

#include "base/serial_queue.h"

#include <gmock/gmock.h>

#include <future>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace tidewatch {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// Keeps what a queue posts until it is run, like a main loop.
class Owner final {
public:
    void take(JobQueue::Job job) {
        const std::lock_guard lock(mutex_);
        jobs_.push_back(std::move(job));
    }
    void runAll() {
        std::vector<JobQueue::Job> jobs;
        {
            const std::lock_guard lock(mutex_);
            jobs.swap(jobs_);
        }
        for (const auto& job : jobs) job();
    }

private:
    std::mutex mutex_;
    std::vector<JobQueue::Job> jobs_;
};

struct SerialQueueTest : testing::Test {
    Owner owner;
    std::unique_ptr<SerialQueue> queue =
        std::make_unique<SerialQueue>([this](JobQueue::Job job) { owner.take(std::move(job)); });
};

// A gate that a job waits at until the test opens it.
class Gate final {
public:
    void open() { opened_.set_value(); }
    void wait() const { whenOpen_.wait(); }

private:
    std::promise<void> opened_;
    std::shared_future<void> whenOpen_ = opened_.get_future().share();
};

TEST_F(SerialQueueTest, JobsRunSequentiallyInOrderOffTheCallersThread) {
    std::vector<int> done;  // by the queue's thread alone, until it has finished
    std::thread::id worker;
    queue->post([&] { worker = std::this_thread::get_id(); });
    for (int i = 0; i < 500; ++i) queue->post([&done, i] { done.push_back(i); });
    queue->finish();
    ASSERT_EQ(done.size(), 500u);
    for (int i = 0; i < 500; ++i) ASSERT_EQ(done[static_cast<std::size_t>(i)], i);
    EXPECT_NE(worker, std::this_thread::get_id());
}

TEST_F(SerialQueueTest, PostingDoesNotBlock) {
    Gate gate;
    std::vector<int> done;
    queue->post([&] { gate.wait(); });
    queue->post([&] { done.push_back(1); });
    gate.open();  // not reached if posting waited for the job
    queue->finish();
    EXPECT_THAT(done, ElementsAre(1));
}

TEST_F(SerialQueueTest, AnEmptyQueueIsFinished) {
    queue->finish();
}

TEST_F(SerialQueueTest, DestructionWaitsForAllJobs) {
    std::vector<int> done;
    for (int i = 0; i < 100; ++i) queue->post([&done, i] { done.push_back(i); });
    queue.reset();
    EXPECT_EQ(done.size(), 100u);
}

TEST_F(SerialQueueTest, AnyThreadMayPost) {
    int sum = 0;
    std::vector<std::thread> posters;
    for (int i = 0; i < 4; ++i) {
        posters.emplace_back([&] {
            for (int k = 0; k < 100; ++k) queue->post([&sum] { ++sum; });
        });
    }
    for (auto& poster : posters) poster.join();
    queue->finish();
    EXPECT_EQ(sum, 400);
}

TEST_F(SerialQueueTest, AResultComesBackToTheOwner) {
    std::vector<std::string> results;
    std::thread::id arrived;
    queue->run([] { return std::string("result"); },
               [&](const std::string& result) {
                   results.push_back(result);
                   arrived = std::this_thread::get_id();
               });
    queue->finish();
    EXPECT_THAT(results, IsEmpty());
    owner.runAll();
    EXPECT_THAT(results, ElementsAre("result"));
    EXPECT_EQ(arrived, std::this_thread::get_id());
}

TEST_F(SerialQueueTest, AResultAfterDestructionIsDropped) {
    std::vector<int> results;
    queue->run([] { return 1; }, [&](int result) { results.push_back(result); });
    queue.reset();
    owner.runAll();
    EXPECT_THAT(results, IsEmpty());
}

}  // namespace
}  // namespace tidewatch
