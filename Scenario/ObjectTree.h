// SPDX-License-Identifier: MIT
#ifndef SCENARIO_OBJECTTREE_H
#define SCENARIO_OBJECTTREE_H

/** @file
 *  Object trees described by one line of text.
 */

#include "Core/Control/GUIObject.h"
#include "Core/Utils/eC_Types.h"

#include <string>
#include <utility>
#include <vector>

/** A description of an object tree, from which the tree can be built any number of times.
 *
 *  The text of one object is its class, its identifier, its attributes and its children:
 *
 *      Composite DLG_HOME invisible { Object OBJ_OK focusable; OBJ_TEXT text="Good morning" }
 *
 *  - The class is an element name that the factory knows. Without one, an object with braces and the
 *    outermost one are a Composite, all others an Object.
 *  - The identifier is the name of a handle, a number, or - for none.
 *  - An attribute is a name, which means name="true", or name=value; values with blanks are quoted.
 *  - Children are in braces, separated by semicolons, in drawing order: the lowest first.
 */
class CObjectTree
{
public:
    /** Reads a description.
     *  @param kText the text of the outermost object
     *  @throws std::invalid_argument with a message that says what was expected and what was found
     */
    explicit CObjectTree(const std::string& kText);

    /** Builds the tree from the object classes of the factory.
     *  @param pkParent the parent of the outermost object, or null
     *  @return the outermost object, which belongs to its parent or, without one, to the caller
     *  @throws std::invalid_argument if a class or attribute is unknown or does not accept the value; no
     *          object is left
     */
    CGUIObject* Build(CGUICompositeObject* pkParent = nullptr) const;

private:
    class CReader;

    struct Node_t
    {
        std::string m_kClass;
        ObjectHandle_t m_eID = NO_HANDLE;
        std::vector<std::pair<std::string, std::string>> m_kAttributes;
        std::vector<Node_t> m_kChildren;
    };

    static CGUIObject* BuildNode(const Node_t& kNode, CGUICompositeObject* pkParent);
    static void SetAttributes(const Node_t& kNode, CGUIObject& kObject);

    Node_t m_kTop;
};

#endif
