#include <Velto/Buffer.h>

#include <utility>

namespace Velto {

void Buffer::AppendDataPtr(const void* data, std::size_t length) {
    if (length != 0) {
        m_bytes.append(static_cast<const char*>(data), length);
    }
}

ManagedBuffer::~ManagedBuffer() {
    if (const auto queue = m_queue.lock()) {
        queue->giveBack(std::move(m_buffer));
    }
}

std::shared_ptr<BufferQueue> BufferQueue::Create(std::size_t count, std::size_t size) {
    std::shared_ptr<BufferQueue> queue(new BufferQueue);
    queue->m_size = size;
    queue->m_idle.resize(count);
    for (Buffer& buffer : queue->m_idle) {
        buffer.Reserve(size);
    }
    return queue;
}

std::shared_ptr<ManagedBuffer> BufferQueue::AcquireBuffer(std::size_t size, bool wait) {
    auto loan = std::make_shared<ManagedBuffer>();
    {
        std::unique_lock lock(m_mutex);
        if (wait) {
            m_returned.wait(lock, [this] { return !m_idle.empty(); });
        }
        if (m_idle.empty()) {
            return nullptr;
        }
        loan->m_buffer = std::move(m_idle.back());
        m_idle.pop_back();
    }
    loan->m_queue = weak_from_this();
    loan->m_buffer.Reserve(size);
    return loan;
}

void BufferQueue::giveBack(Buffer&& buffer) {
    // One large message must not keep its memory for good, and bytes that were assigned bring memory of
    // their own size: whatever strayed from the queue's size is replaced.
    const std::size_t capacity = buffer.GetCapacity();
    Buffer returned;
    if (capacity >= m_size && capacity <= 4 * m_size) {
        returned = std::move(buffer);
        returned.Clear();
    } else {
        returned.Reserve(m_size);
    }
    {
        const std::lock_guard lock(m_mutex);
        m_idle.push_back(std::move(returned));
    }
    m_returned.notify_one();
}

} // namespace Velto
