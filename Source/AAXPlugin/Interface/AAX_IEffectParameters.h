#pragma once

#include "AAXPlugin/Interface/AAX_Chunk.h"
#include "AAXPlugin/Interface/IACFUnknown.h"

/// The parameters and the state of one instance. The plug-in's object, made by its creation procedure.
///
/// Life: Initialize once, with success, before all else; Uninitialize before the last reference goes, with
/// the process procedure no longer running on the instance. Threads: any but the audio thread, and no two
/// calls for chunks at a time; values may be read and set from several threads.
///
/// Parameters go by identifier. An identifier that the instance does not have, or a null argument, gives
/// Failed. Texts that come out by pointer live as long as the object. Texts that come out in a buffer are cut
/// at its capacity, which counts the terminating zero, never inside a character.
class AAX_IEffectParameters : public IACFUnknown
{
public:
    /// `controller` offers IAAXController.
    virtual std::int32_t Initialize(IACFUnknown* controller) = 0;
    virtual std::int32_t Uninitialize() = 0;

    virtual std::int32_t GetParameterCount(std::int32_t* count) = 0;
    virtual std::int32_t GetParameterId(std::int32_t index, const char** id) = 0;
    virtual std::int32_t GetParameterIndex(const char* id, std::int32_t* index) = 0;

    /// The identifier of the parameter that the host's own bypass switch moves.
    virtual std::int32_t GetMasterBypassId(const char** id) = 0;

    virtual std::int32_t GetParameterName(const char* id, char* name, std::int32_t capacity) = 0;

    /// 1 or 0: whether every value of the range can be set, or only those of its steps.
    virtual std::int32_t IsParameterContinuous(const char* id, std::int32_t* continuous) = 0;

    /// -1 for a continuous parameter.
    virtual std::int32_t GetParameterStepCount(const char* id, std::int32_t* steps) = 0;

    /// The values that 0 and 1 stand for, in the parameter's own units; even between them.
    virtual std::int32_t GetParameterRange(const char* id, double* min, double* max) = 0;

    /// Values are from 0 to 1.
    virtual std::int32_t GetParameterDefault(const char* id, double* normalized) = 0;
    virtual std::int32_t GetParameterValue(const char* id, double* normalized) = 0;

    /// The host's word on the value: from its automation, from its own controls, or in answer to
    /// IAAXAutomationDelegate::PostValue. In answer to a value that was posted inside the process procedure
    /// it neither waits nor allocates; otherwise those who listen to the value run before it returns.
    virtual std::int32_t SetParameterValue(const char* id, double normalized) = 0;

    /// Text of any value of the parameter, and back. Failed for a text that is no value.
    virtual std::int32_t GetParameterText(const char* id, double normalized, char* text,
                                          std::int32_t capacity) = 0;
    virtual std::int32_t GetValueOfText(const char* id, const char* text, double* normalized) = 0;

    /// An identifier that is not of a chunk gives UnknownChunk.
    virtual std::int32_t GetChunkCount(std::int32_t* count) = 0;
    virtual std::int32_t GetChunkId(std::int32_t index, std::uint32_t* chunkId) = 0;

    /// Bytes of data, without the head; 0 for an unknown chunk.
    virtual std::int32_t GetChunkSize(std::uint32_t chunkId, std::uint32_t* size) = 0;

    /// Fills the chunk, which has room for as many bytes of data as GetChunkSize last said. WrongChunkSize if
    /// the state has changed meanwhile so that it no longer fits; ask for the size again then.
    virtual std::int32_t GetChunk(std::uint32_t chunkId, SAAXChunk* chunk) = 0;

    /// Takes over what the chunk holds, and leaves the state alone if it cannot be read. A plug-in's own
    /// chunk, which no host can interpret, is answered with UnknownChunk even if it was taken.
    virtual std::int32_t SetChunk(std::uint32_t chunkId, const SAAXChunk* chunk) = 0;

    /// 1 or 0: whether the chunk holds the present state.
    virtual std::int32_t CompareActiveChunk(const SAAXChunk* chunk, std::int32_t* equal) = 0;

    /// Data between the objects of an instance, which the host only carries. Failed for an identifier or a
    /// size that the plug-in does not know.
    virtual std::int32_t GetCustomData(std::uint32_t dataId, std::uint32_t size, void* data,
                                       std::uint32_t* written) = 0;

protected:
    ~AAX_IEffectParameters() = default;
};
