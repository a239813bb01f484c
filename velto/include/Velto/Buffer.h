#pragma once

#include <condition_variable>
#include <cstddef>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>
#include <vector>

namespace Velto {

/// A run of bytes that is appended to. Not thread-safe: one owner at a time.
class Buffer {
public:
    /// Appends `length` bytes; the buffer grows when they do not fit.
    void AppendDataPtr(const void* data, std::size_t length);
    const char* GetDataPtr() const { return m_bytes.data(); }
    std::size_t GetDataSize() const { return m_bytes.size(); }
    std::string_view View() const { return m_bytes; }

    /// Forgets the content and keeps the memory.
    void Clear() { m_bytes.clear(); }
    void Reserve(std::size_t size) { m_bytes.reserve(size); }
    std::size_t GetCapacity() const { return m_bytes.capacity(); }
    /// Takes the bytes over without a copy.
    void Assign(std::string&& bytes) { m_bytes = std::move(bytes); }

private:
    std::string m_bytes;
};

class BufferQueue;

/// A buffer on loan from a queue: goes back to it with the last reference, on whatever thread that is.
class ManagedBuffer {
public:
    /// A buffer of its own that belongs to no queue.
    ManagedBuffer() = default;
    ~ManagedBuffer();
    ManagedBuffer(const ManagedBuffer&) = delete;
    ManagedBuffer& operator=(const ManagedBuffer&) = delete;

    Buffer& GetBuffer() { return m_buffer; }
    const Buffer& GetBuffer() const { return m_buffer; }

private:
    friend class BufferQueue;
    Buffer m_buffer;
    std::weak_ptr<BufferQueue> m_queue;
};

/// A fixed number of buffers that are used again and again, so that sending allocates nothing. Any thread.
class BufferQueue : public std::enable_shared_from_this<BufferQueue> {
public:
    /// `count` buffers of `size` bytes each.
    static std::shared_ptr<BufferQueue> Create(std::size_t count, std::size_t size);

    /// An empty buffer with room for `size` bytes (more than the queue's own size makes it grow for this
    /// use). When all are on loan: with `wait` blocks until one comes back, without it returns none.
    std::shared_ptr<ManagedBuffer> AcquireBuffer(std::size_t size, bool wait);

private:
    friend class ManagedBuffer;
    BufferQueue() = default;
    void giveBack(Buffer&& buffer);

    std::mutex m_mutex;
    std::condition_variable m_returned;
    std::vector<Buffer> m_idle;
    std::size_t m_size = 0;
};

} // namespace Velto
