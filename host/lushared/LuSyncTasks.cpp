// SPDX-License-Identifier: Apache-2.0
#include <LuShared/LuSyncTasks.h>

#include <utility>

LuSyncTasks::LuSyncTasks(const QString& name) : m_name(name) {}

LuSyncTasks::~LuSyncTasks() = default;

void LuSyncTasks::addTask(std::function<void()> task)
{
    m_tasks.push_back(std::move(task));
}

void LuSyncTasks::addSubTask(std::function<void()> task)
{
    task();
}

std::vector<std::function<void()>> LuSyncTasks::takeTasks()
{
    return std::exchange(m_tasks, {});
}
