// Holds the compiled image and icon resources.
