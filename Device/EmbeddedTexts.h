// SPDX-License-Identifier: MIT
#ifndef DEVICE_EMBEDDEDTEXTS_H
#define DEVICE_EMBEDDEDTEXTS_H

/** @file
 *  Text files that are compiled into the program, because there is no file system.
 */

struct EmbeddedText_t
{
    const char* m_pcName; ///< the file's name without directories, null after the last one
    const char* m_pcText;
};

/** The files that device_embed_texts adds to the program. */
extern const EmbeddedText_t g_akEmbeddedTexts[];

#endif
