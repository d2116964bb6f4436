// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.
#pragma once

/** A question as a developer would ask it, and the file of the article that should come first. */
struct FGuideQuestion
{
	const char* Article;
	const char* Question;
};

/** Written before the search was tuned. No question holds a word of its article's title. */
inline constexpr FGuideQuestion TunedQuestions[] = {
	{"Timers", "How can I run a function every two seconds until the player dies?"},
	{"GarbageCollection", "My object disappears at random and the game crashes when I use it a minute later"},
	{"Blueprints", "How do I make a variable show up in the details panel of the editor?"},
	{"Replication", "Health goes down on the server, but the other players still see the old value"},
	{"Delegates", "How can one class tell others that something happened without knowing them?"},
	{"Collision", "I want to shoot a ray from the camera and find out what it hits"},
	{"SaveGames", "Where do I keep the player's progress so that it is still there after a restart?"},
	{"Modules", "The linker complains about an unresolved external symbol"},
	{"ActorsAndComponents", "How do I put a mesh that spins into the level?"},
	{"Subsystems", "I need a manager that exists once for the whole session, something like a singleton"},
	{"AsyncLoading", "Opening the level takes forever because all textures and meshes come into memory at once"},
	{"Interfaces", "How do doors, chests and levers all answer to the same call without a common base class?"},
	{"UmgWidgets", "Show the player's health as a bar on the screen"},
	{"Strings", "How do I join words and numbers into one sentence that can be translated?"},
	{"Containers", "How can I look up an item by its key quickly?"},
	{"AiAndNavigation", "Make the enemy walk to the player and chase him around obstacles"},
	{"Performance", "The frame rate drops to 20, how do I find out which code is slow?"},
	{"Multithreading", "Do expensive work in the background without freezing the picture"},
	{"DataAssets", "How can designers edit the damage and price of a hundred swords without touching C++?"},
	{"Animation", "How do I let the character swing his sword and do the damage at the right moment?"},
};

/** Written with the others and never looked at while tuning: what the search is worth on questions that nobody fitted it to. */
inline constexpr FGuideQuestion HeldOutQuestions[] = {
	{"EnhancedInput", "How can I move the character when a key on the keyboard is pressed?"},
	{"Logging", "How do I print a message with a number to find out what my code is doing?"},
	{"SmartPointers", "Who deletes a plain C++ object that two systems share?"},
	{"Math", "How do I turn a turret smoothly until it faces the enemy?"},
	{"AutomationTests", "How do I make sure that my inventory still works after every change, without playing by hand?"},
	{"ConsoleVariables", "Change a number while the game runs by typing it after the tilde key"},
	{"GameFramework", "Where does the score of the match belong, and who decides that the match is over?"},
	{"GameplayTags", "How do I mark something as burning or stunned without a pile of booleans?"},
	{"GameplayAbilities", "A spell with mana cost and a cooldown"},
	{"SlateWidgets", "How do I write a panel with a list of my own for the editor in C++?"},
};
